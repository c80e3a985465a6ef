#include "qt/SafeArea.h"

#include <gtest/gtest.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <vector>

#include "qt/SafeAreaWatcher.h"
#include "tests/qt/FeeRow.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

using Margins = std::optional<QMargins>;

template <class>
struct SafeArea : ::testing::Test {};
TYPED_TEST_SUITE(SafeArea, Screens, ScreenName);

TYPED_TEST(SafeArea, ASheetKeepsClearOfItAlsoWhenTheWindowTurns) {
  TypeParam screen;
  screen.add(FeeRow("4 €"), kPlace);
  qt::setSafeArea(screen.window(), QMargins(0, 47, 0, 34));
  screen.click("Row 4 €");
  const struct {
    QSize window;
    Margins covered;
    QPoint fee;  ///< from the middle of the sheet without a safe area
  } rows[] = {
      {{360, 600}, QMargins(0, 47, 0, 34), {0, -34}},
      {{600, 360}, QMargins(47, 0, 0, 21), {23, -21}},
      {{600, 360}, QMargins(0, 0, 47, 21), {-24, -21}},
      {{700, 360}, QMargins(50, 0, 0, 0), {10, 0}},
      {{360, 600}, std::nullopt, {0, 0}},
  };
  QPoint without;
  for (const auto& row : {rows[4], rows[0], rows[1], rows[2], rows[3], rows[4]}) {
    screen.window().resize(row.window);
    qt::setSafeArea(screen.window(), row.covered);
    screen.settle();
    const QPoint middle(row.window.width() / 2, row.window.height());
    const QPoint fee = screen.centerOf("Fee 4 €") - middle;
    if (!row.covered) without = fee;
    EXPECT_EQ(fee - without, row.fee) << row.window.width();
  }
}

/// As Qt's own windows are from 6.9 on.
class DeviceWindow : public QWindow {
  Q_OBJECT

 public:
  QMargins safeAreaMargins() const { return margins; }
  QMargins margins{0, 47, 0, 34};

 signals:
  void safeAreaMarginsChanged(QMargins margins);
};

TEST(SafeAreaWatcher, FollowsQtUnlessTheHostSaysOtherwise) {
  DeviceWindow window;
  std::vector<QMargins> told;
  const qt::SafeAreaWatcher watcher(window, [&] { told.push_back(watcher.covered()); });
  EXPECT_EQ(watcher.covered(), QMargins(0, 47, 0, 34));
  window.margins = {47, 0, 47, 21};
  emit window.safeAreaMarginsChanged(window.margins);
  qt::setSafeArea(window, QMargins());
  qt::setSafeArea(window, std::nullopt);
  EXPECT_EQ(told, (std::vector<QMargins>{{47, 0, 47, 21}, {}, {47, 0, 47, 21}}));
}

TEST(SafeAreaWatcher, FollowsAHostInQml) {
  qmlRegisterType<DeviceWindow>("Device", 1, 0, "DeviceWindow");
  const struct {
    QByteArray edges;
    QMargins covered;
  } rows[] = {
      {"", {0, 47, 0, 34}},
      {"WindowSafeArea.top: 0", {}},
      {"WindowSafeArea.top: 40; WindowSafeArea.left: height", {8, 40, 0, 0}},
  };
  for (const auto& row : rows) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Device; import QuorixWidgets\nDeviceWindow {" + row.edges + "}", {});
    const std::unique_ptr<QObject> made(component.create());
    auto* window = qobject_cast<DeviceWindow*>(made.get());
    ASSERT_TRUE(window) << component.errorString().toStdString();
    window->setHeight(8);
    EXPECT_EQ(qt::SafeAreaWatcher(*window, [] {}).covered(), row.covered) << row.edges.data();
  }
}

}  // namespace
}  // namespace quorix::testing

#include "SafeAreaTest.moc"
