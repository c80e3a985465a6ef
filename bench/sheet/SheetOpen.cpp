#include <QEventLoop>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <string_view>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Subjects.h"
#include "qt/quick/ViewItem.h"

// Opens the sheet of a score row by a tap, the first time in the process and later. Prints the
// milliseconds until the sheet's first frame, and the processor time until then. Without motion,
// that frame shows the sheet at rest.
//
//   sheet_open ours|qml motion|still

namespace quorix::bench {
namespace {

/// The initial properties of the QML equivalent: the texts of the row and of its sheet.
QVariantMap sheetProperties(const Shopper& shopper) {
  const auto figures = parseTokenData(shopper.token);
  if (!figures) std::abort();
  const ScoreWidgetViewModel model("my-shop", *figures, "en", {std::nullopt, std::nullopt});
  const auto localization = LocalizationRepository::make("en");
  const ScoreWidgetTexts texts(model, *localization);
  QVariantMap properties = shopper.properties();
  const auto add = [&](const char* name, std::string_view text) {
    properties.insert(QLatin1String(name), QString::fromUtf8(text));
  };
  add("feeName", texts.text("returns", "fee"));
  add("rateName", texts.text("returns", "rate"));
  add("rate", model.returnRate.get());
  add("disclaimer", texts.text("returns", "disclaimer"));
  add("closeName", texts.text("actions", "close"));
  return properties;
}

/// Watches a window after a tap.
class SheetClock {
 public:
  /// Milliseconds since the tap.
  struct Moments {
    double first = 0;  ///< time of the first frame with the sheet
    double work = 0;   ///< the thread's processor time until then
  };

  /// `isSheet` returns whether an item is the sheet's.
  SheetClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isSheet);

  /// `tap` opens the sheet. Ends the process if it does not open.
  Moments open(const std::function<void()>& tap);
  /// Whether the sheet's first frame equals its last one. Measures no time.
  bool restsAtOnce(const std::function<void()>& tap);
  /// `close` closes the sheet. Ends the process if it stays open.
  void close(const std::function<void()>& close);

 private:
  void frameIsOut();
  bool isUp() const;
  void untilRest();

  QQuickWindow& window_;
  std::function<bool(const QQuickItem&)> isSheet_;
  Moments start_;
  Moments moments_;
  bool moved_ = false;
  bool looking_ = false;
  QImage seen_;
};

/// Milliseconds without a frame that count as rest. Motion has a frame every 16.
constexpr int kRest = 100;

double milliseconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

bool contains(const QQuickItem& item, const std::function<bool(const QQuickItem&)>& matches) {
  const auto children = item.childItems();
  return std::any_of(children.begin(), children.end(), [&](const QQuickItem* child) {
    return child->isVisible() && (matches(*child) || contains(*child, matches));
  });
}

SheetClock::SheetClock(QQuickWindow& window, std::function<bool(const QQuickItem&)> isSheet)
    : window_(window), isSheet_(std::move(isSheet)) {
  QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [this] { frameIsOut(); });
}

bool SheetClock::isUp() const { return contains(*window_.contentItem(), isSheet_); }

void SheetClock::frameIsOut() {
  moved_ = true;
  if (!isUp()) return;
  if (moments_.first == 0) {
    moments_.first = milliseconds(CLOCK_MONOTONIC) - start_.first;
    moments_.work = milliseconds(CLOCK_THREAD_CPUTIME_ID) - start_.work;
    if (looking_) seen_ = window_.grabWindow();
  }
}

SheetClock::Moments SheetClock::open(const std::function<void()>& tap) {
  moments_ = {};
  start_ = {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID)};
  tap();
  untilRest();
  if (moments_.first > 0) return moments_;
  std::fputs("the sheet did not come\n", stderr);
  std::_Exit(1);
}

bool SheetClock::restsAtOnce(const std::function<void()>& tap) {
  looking_ = true;
  open(tap);
  looking_ = false;
  return seen_ == window_.grabWindow();
}

void SheetClock::close(const std::function<void()>& close) {
  close();
  untilRest();
  if (!isUp()) return;
  std::fputs("the sheet did not go\n", stderr);
  std::_Exit(1);
}

void SheetClock::untilRest() {
  do {
    moved_ = false;
    QEventLoop loop;
    QTimer::singleShot(kRest, &loop, &QEventLoop::quit);
    loop.exec();
  } while (moved_);
}

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
  const Shopper shopper(0);
  std::unique_ptr<QmlPeer> qml;
  std::unique_ptr<QQuickItem> row;
  if (ours) {
    auto item = std::make_unique<quorix::qt::ViewItem>(shopper.ours(), window.contentItem());
    item->setMotion(motion);
    item->setWidth(343);
    row = std::move(item);
  } else {
    qml = std::make_unique<QmlPeer>(QStringLiteral("SheetRow"));
    row.reset(qml->make(sheetProperties(shopper), window.contentItem(), 343));
  }
  row->setPosition({16, 16});
  window.show();
  window.requestActivate();
  BenchApplication::settle();
  report(window, ours ? "quorix::qt::SheetItem" : "QQuickPopupItem", motion);
  return 0;
}
