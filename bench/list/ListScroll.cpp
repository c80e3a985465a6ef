// The cost of a row in QML: rows made and painted one by one, from C++ and from the QML module, and
// rows of a list of 200 that scrolls from end to end, with and without reuse of delegates. Compares
// with a peer.
//
//   list_scroll

#include <QQuickItem>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Subjects.h"
#include "bench/list/RowList.h"
#include "qt/quick/ViewItem.h"

namespace quorix::bench {
namespace {

constexpr QSize kWindow(343, 720);
constexpr int kRows = 200;
constexpr int kTurns = 15;

constexpr char kRow[] = R"(
    import QuorixWidgets
    ScoreWidget { clientId: "my-shop"; locale: "en" })";

double microseconds() { return 1e6 * BenchApplication::threadSeconds(); }

class Measurement {
 public:
  Measurement() {
    row_.setData(kRow, {});
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

  /// The time for each row that scrolled into sight, including the frames without a new row.
  double scrolled(RowList& rows, bool reuse) {
    const auto list = rows.make(*stage_.root(), shoppers_, reuse);
    stage_.frame();
    const double end = list->property("contentHeight").toDouble() - kWindow.height();
    list->setProperty("taken", 0);
    const double start = microseconds();
    for (double y = 0; y < end; y += 25) {
      list->setProperty("contentY", y);
      stage_.frame();
    }
    return (microseconds() - start) / list->property("taken").toDouble();
  }

  RowList ours{RowList::Rows::ours};
  RowList peer{RowList::Rows::peer};

 private:
  template <class Make>
  double oneByOne(const Make& make) {
    const double start = microseconds();
    for (const Shopper& shopper : shoppers_) {
      const std::unique_ptr<QQuickItem> item(make(shopper));
      stage_.frame();
    }
    return (microseconds() - start) / kRows;
  }

  QuickStage stage_{kWindow};
  QQmlEngine engine_;
  QQmlComponent row_{&engine_};
  std::vector<Shopper> shoppers_;
};

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + kTurns / 2, values.end());
  return values[kTurns / 2];
}

void report() {
  Measurement measurement;
  const struct {
    const char* what;
    std::function<double()> run;
  } measured[] = {
      {"made and painted, from C++", [&] { return measurement.fromCpp(); }},
      {"made and painted, from QML", [&] { return measurement.fromQml(); }},
      {"scrolled into sight, made anew",
       [&] { return measurement.scrolled(measurement.ours, false); }},
      {"... a peer in QML", [&] { return measurement.scrolled(measurement.peer, false); }},
      {"scrolled into sight, reused", [&] { return measurement.scrolled(measurement.ours, true); }},
      {"... a peer in QML", [&] { return measurement.scrolled(measurement.peer, true); }},
  };
  std::vector<std::vector<double>> values(std::size(measured));
  for (int turn = -1; turn < kTurns; ++turn) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double taken = measured[i].run();
      if (turn >= 0) values[i].push_back(taken);  // the first turn is the warm-up
    }
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::printf("%-32s %7.1f us a row\n", measured[i].what, median(values[i]));
  }
}

}  // namespace
}  // namespace quorix::bench

int main(int argc, char** argv) {
  const quorix::bench::BenchApplication application(argc, argv);
  quorix::bench::report();
  return 0;
}
