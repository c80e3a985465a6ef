// A tap on a score row opens its sheet, the first time in the process and later. Prints after how
// many milliseconds the sheet's first frame was on its way, and how much work that was. Without
// motion that frame shows the sheet at rest.
//
//   sheet_open ours|qml motion|still

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "bench/BenchApplication.h"
#include "bench/Input.h"
#include "bench/QmlPeer.h"
#include "bench/sheet/SheetClock.h"
#include "bench/sheet/SheetSubject.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

constexpr std::size_t kLaterTimes = 5;

void print(const char* name, const SheetClock::Moments& moments, const char* end) {
  std::printf("\"%s\": {\"first\": %.3f, \"work\": %.3f}%s", name, moments.first, moments.work,
              end);
}

void report(QQuickWindow& window, const char* sheet, bool motion) {
  SheetClock clock(window, [sheet](const QQuickItem& item) { return item.inherits(sheet); });
  const auto tap = [&] { sendTap(window, {30, 24}); };
  const auto escape = [&] { sendEscape(window); };
  const auto cold = clock.open(tap);
  std::array<SheetClock::Moments, kLaterTimes> later;
  for (auto& moments : later) {
    clock.close(escape);
    moments = clock.open(tap);
  }
  std::nth_element(later.begin(), later.begin() + kLaterTimes / 2, later.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  clock.close(escape);
  if (!motion && !clock.restsAtOnce(tap)) {
    std::fputs("the sheet goes on after its first frame\n", stderr);
    std::_Exit(1);
  }
  std::printf("{");
  print("cold", cold, ", ");
  print("warm", later[kLaterTimes / 2], "}\n");
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  using namespace quorix::bench;
  const BenchApplication application(argc, argv);
  if (argc != 3) return 2;
  const bool ours = std::string_view(argv[1]) == "ours";
  const bool motion = std::string_view(argv[2]) == "motion";
  QQuickWindow window;
  window.resize(375, 700);
  const SheetSubject subject;
  std::unique_ptr<QmlPeer> qml;
  std::unique_ptr<QQuickItem> row;
  if (ours) {
    auto item = std::make_unique<quorix::qt::ViewItem>(subject.ours(), window.contentItem());
    item->setMotion(motion);
    item->setWidth(343);
    row = std::move(item);
  } else {
    qml = std::make_unique<QmlPeer>(QStringLiteral("SheetRow"));
    row.reset(qml->make(subject, window.contentItem(), 343));
  }
  row->setPosition({16, 16});
  window.show();
  window.requestActivate();
  BenchApplication::settle();
  report(window, ours ? "quorix::qt::SheetItem" : "QQuickPopupItem", motion);
  return 0;
}
