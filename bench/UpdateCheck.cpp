// Checks that a translation update of one row lays out and repaints only that row, and that an app
// at rest does nothing. Counts evaluations, measurements and paints, prints the counts and fails if
// they differ from the expected ones.

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <vector>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "bench/BenchApplication.h"
#include "platform/hosting/ViewHost.h"
#include "qt/quick/ViewItem.h"
#include "qt/text/QtTextEngine.h"

namespace quorix::bench {
namespace {

constexpr std::size_t kRows = 1000;
constexpr std::size_t kUpdated = 7;
constexpr layout::Size kRowSize = {343, 17};

/// The number of operations on one row.
struct Counts {
  int bodies = 0;
  int measured = 0;
  int painted = 0;
  bool operator==(const Counts&) const = default;
};

/// Wraps the row's own view to count its evaluations.
struct CountedView {
  static constexpr std::string_view typeName = "CountedView";
  ScoreWidgetView row;
  Counts* counts;

  swiftui::View body() const {
    ++counts->bodies;
    return row;
  }
};

struct Row {
  std::shared_ptr<LocalizationRepository> localization = LocalizationRepository::make("en");
  Counts counts;

  swiftui::View view(std::size_t number) {
    const TokenData figures{0.82, "EUR", static_cast<std::int64_t>(number) * 100 + 700, 300};
    return CountedView{{std::make_shared<ScoreWidgetViewModel>(
                            "my-shop", figures, "en", ScoreWidgetStyle{std::nullopt, std::nullopt}),
                        localization},
                       &counts};
  }

  void update() {
    localization->strings = TranslationTable::make({{"returns", "title", "Your fee for returns"}});
  }
};

/// The row on the library's own surface, in a window.
class CountedItem final : public qt::ViewItem {
 public:
  CountedItem(Row& row, std::size_t number, QQuickItem* parent)
      : ViewItem(row.view(number), parent), counts_(row.counts) {
    setSize({kRowSize.width, kRowSize.height});
  }

 private:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override {
    ++counts_.painted;
    return ViewItem::updatePaintNode(old, data);
  }
  Counts& counts_;
};

/// The row on a minimal surface that counts the measurements of its layout.
class CountedHost final : private hosting::ViewHost::Client, private text::TextEngine {
 public:
  CountedHost(Row& row, std::size_t number) : counts_(row.counts) {
    host_.setRoot(row.view(number));
    host_.setOnScreen(true);
    paint();
  }

 private:
  void viewNeedsDisplay() override {
    if (std::exchange(queued_, true)) return;
    QTimer::singleShot(0, qApp, [this] { paint(); });
  }
  text::TextMetrics measure(const text::AttributedText& text, double width) override {
    ++counts_.measured;
    return qt::QtTextEngine::shared().measure(text, width);
  }
  double leastWidth(const text::AttributedText& text) override {
    return qt::QtTextEngine::shared().leastWidth(text);
  }
  void paint() {
    queued_ = false;
    host_.scene(kRowSize);
    ++counts_.painted;
  }

  Counts& counts_;
  bool queued_ = false;
  hosting::ViewHost host_{*this, *this};
};

/// Runs one update on settled rows and reports the counts. False if they are too high.
bool check(const char* surface, std::vector<Row>& rows, const int& frames) {
  BenchApplication::settle();
  const int framesBefore = frames;
  for (Row& row : rows) row.counts = {};
  BenchApplication::settle();
  bool idle = frames == framesBefore;
  for (const Row& row : rows) idle = idle && row.counts == Counts{};
  rows[kUpdated].update();
  BenchApplication::settle();
  Counts others;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i == kUpdated) continue;
    others.bodies += rows[i].counts.bodies;
    others.measured += rows[i].counts.measured;
    others.painted += rows[i].counts.painted;
  }
  const Counts& own = rows[kUpdated].counts;
  std::printf(
      "{\"surface\": \"%s\", \"rows\": %zu, \"idle\": %s, \"own\": [%d, %d, %d], "
      "\"others\": [%d, %d, %d]}\n",
      surface, rows.size(), idle ? "true" : "false", own.bodies, own.measured, own.painted,
      others.bodies, others.measured, others.painted);
  return idle && own.bodies == 1 && own.painted == 1 && others == Counts{};
}

bool checkItems() {
  std::vector<Row> rows(kRows);
  QQuickWindow window;
  int frames = 0;
  QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { ++frames; });
  window.resize(343, 17 * static_cast<int>(kRows));  // shows all rows, so that all could be painted
  std::vector<std::unique_ptr<CountedItem>> items;
  for (std::size_t i = 0; i < kRows; ++i) {
    items.push_back(std::make_unique<CountedItem>(rows[i], i, window.contentItem()));
    items.back()->setY(kRowSize.height * static_cast<double>(i));
  }
  window.show();
  return check("items in a window", rows, frames);
}

bool checkHosts() {
  std::vector<Row> rows(kRows);
  std::vector<std::unique_ptr<CountedHost>> hosts;
  for (std::size_t i = 0; i < kRows; ++i) {
    hosts.push_back(std::make_unique<CountedHost>(rows[i], i));
  }
  return check("plain hosts", rows, 0);
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  const quorix::bench::BenchApplication application(argc, argv);
  const bool items = quorix::bench::checkItems();
  const bool hosts = quorix::bench::checkHosts();
  return items && hosts ? 0 : 1;
}
