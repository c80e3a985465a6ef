// The cost of one score row in the core, for a view that is already built: evaluate it, lay it out
// with a text engine of fixed widths, and make its display list with hit areas and accessibility
// elements. Prints the time and the allocations of a pass. Under callgrind, the difference between
// two runs with different PASSES gives the instructions of a pass.
//
//   core_pass [PASSES [MOST]]      fails if a pass makes more than MOST allocations
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "bench/Allocations.h"
#include "platform/hosting/ViewHost.h"
#include "platform/swiftui/Elements.h"

namespace quorix::bench {
namespace {

constexpr layout::Size kRow = {343, 24};

/// A text engine: each byte is half as wide as its font's size, and every text is one line.
class FixedWidths final : public text::TextEngine {
 public:
  text::TextMetrics measure(const text::AttributedText& text, double) override {
    double width = 0;
    for (const text::Run& run : text.runs) {
      width += static_cast<double>(run.text.size()) * run.font.points / 2;
    }
    return {{width, 17}};
  }
  double leastWidth(const text::AttributedText& text) override {
    return measure(text, 0).size.width;
  }
};

void pass(const swiftui::View& view, FixedWidths& engine) {
  hosting::ViewHost::Client surface;
  hosting::ViewHost host(engine, surface);
  host.setRoot(view);
  const auto& list = host.scene(kRow);
  const bool whole =
      list.items.size() == 3 && list.hitAreas.size() == 1 && list.accessibility.size() == 1;
  if (!whole) std::abort();
}

bool run(int passes, double most) {
  const TokenData figures{0.82, "EUR", 600, 300};
  const auto model = std::make_shared<ScoreWidgetViewModel>(
      "my-shop", figures, "en", ScoreWidgetStyle{std::nullopt, std::nullopt});
  const swiftui::View view =
      swiftui::Conditional(true, ScoreWidgetView{model, LocalizationRepository::make("en")});
  FixedWidths engine;
  for (int i = 0; i < 10; ++i) pass(view, engine);

  const std::size_t before = allocations();
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < passes; ++i) pass(view, engine);
  const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
  const int each = std::max(1, passes);
  const double allocated = static_cast<double>(allocations() - before) / each;
  std::printf("{\"allocations\": %.1f, \"microseconds\": %.2f}\n", allocated, taken.count() / each);
  return allocated <= most;
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  const int passes = argc > 1 ? std::atoi(argv[1]) : 10000;
  const double most = argc > 2 ? std::atof(argv[2]) : HUGE_VAL;
  return quorix::bench::run(passes, most) ? 0 : 1;
}
