// What a row costs in QML: made and painted one by one, from C++ and from the QML module, and in a
// list of 200 that scrolls from end to end, with and without the reuse of delegates.
//
//   list_scroll

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Shopper.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr QSize kWindow(343, 720);
constexpr int kRows = 200;
constexpr int kTurns = 15;

constexpr char kRow[] = R"(
    import QuorixWidgets
    ScoreWidget { clientId: "my-shop"; locale: "en" })";
constexpr char kList[] = R"(
    import QtQuick
    import QuorixWidgets
    ListView {
      id: list
      property int taken: 0
      width: 343; height: 720; spacing: 8; cacheBuffer: 0
      delegate: ScoreWidget {
        required property string modelData
        width: list.width; clientId: "my-shop"; locale: "en"; token: modelData
        Component.onCompleted: ++list.taken
        ListView.onReused: ++list.taken
      }
    })";

double microsecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

class Measurement {
 public:
  Measurement() {
    row_.setData(kRow, {});
    list_.setData(kList, {});
    for (std::size_t i = 0; i < kRows; ++i) shoppers_.emplace_back(i);
  }

  double fromCpp() {
    return oneByOne([&](const Shopper& shopper) -> QQuickItem* {
      auto* item = new qt::ViewItem(shopper.ours(), stage_.root());
      item->setWidth(kWindow.width());
      return item;
    });
  }

  double fromQml() {
    return oneByOne([&](const Shopper& shopper) {
      return create(row_, {{"parent", QVariant::fromValue(stage_.root())},
                           {"width", kWindow.width()},
                           {"token", QString::fromStdString(shopper.token)}});
    });
  }

  /// For each row that came into sight, the frames in which none did counted in.
  double scrolled(bool reuse) {
    QStringList tokens;
    for (const Shopper& shopper : shoppers_) tokens.append(QString::fromStdString(shopper.token));
    const std::unique_ptr<QQuickItem> list(
        create(list_, {{"parent", QVariant::fromValue(stage_.root())},
                       {"reuseItems", reuse},
                       {"model", tokens}}));
    stage_.frame();
    const double end = list->property("contentHeight").toDouble() - kWindow.height();
    list->setProperty("taken", 0);
    const auto start = Clock::now();
    for (double y = 0; y < end; y += 25) {
      list->setProperty("contentY", y);
      stage_.frame();
    }
    return microsecondsSince(start) / list->property("taken").toDouble();
  }

 private:
  template <class Make>
  double oneByOne(const Make& make) {
    const auto start = Clock::now();
    for (const Shopper& shopper : shoppers_) {
      const std::unique_ptr<QQuickItem> item(make(shopper));
      stage_.frame();
    }
    return microsecondsSince(start) / kRows;
  }

  static QQuickItem* create(QQmlComponent& component, const QVariantMap& properties) {
    auto* item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
    if (item) return item;
    qCritical("%s", qPrintable(component.errorString()));
    std::abort();
  }

  QuickStage stage_{kWindow};
  QQmlEngine engine_;
  QQmlComponent row_{&engine_};
  QQmlComponent list_{&engine_};
  std::vector<Shopper> shoppers_;
};

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + kTurns / 2, values.end());
  return values[kTurns / 2];
}

void report() {
  Measurement measurement;
  std::vector<double> fromCpp, fromQml, made, reused;
  for (int turn = -1; turn < kTurns; ++turn) {  // the first warms up
    if (turn == 0) fromCpp.clear(), fromQml.clear(), made.clear(), reused.clear();
    fromCpp.push_back(measurement.fromCpp());
    fromQml.push_back(measurement.fromQml());
    made.push_back(measurement.scrolled(false));
    reused.push_back(measurement.scrolled(true));
  }
  std::printf("made and painted, microseconds a row: %.1f from C++, %.1f from QML\n",
              median(fromCpp), median(fromQml));
  std::printf("scrolled into sight in a list of %d: %.1f made anew, %.1f reused\n", kRows,
              median(made), median(reused));
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  const quorix::bench::BenchApplication application(argc, argv);
  quorix::bench::report();
  return 0;
}
