#include "qt/SafeArea.h"

#include <QQmlComponent>

#include "qt/SafeAreaWatcher.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

SCREENS_TEST_SUITE(SafeArea);

TYPED_TEST(SafeArea, ASheetKeepsClearOfItAlsoWhenTheWindowTurns) {
  TypeParam screen;
  screen.add(FeeRow("4 €"), kPlace);
  qt::setSafeArea(screen.window(), QMargins(0, 47, 0, 34));
  screen.click("Row 4 €");
  const auto feeFromTheBottom = [&] {
    screen.settle();
    return screen.centerOf("Fee 4 €") - QPoint(0, screen.window().height());
  };
  const QPoint before = feeFromTheBottom();
  screen.window().resize(600, 360);
  qt::setSafeArea(screen.window(), QMargins(47, 0, 0, 21));
  EXPECT_EQ(feeFromTheBottom() - before, QPoint(120 + 23, 34 - 21));
  screen.window().resize(360, 600);
  qt::setSafeArea(screen.window(), std::nullopt);
  EXPECT_EQ(feeFromTheBottom() - before, QPoint(0, 34));
}

/// Behaves like Qt's own windows from 6.9 on.
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
  const std::pair<QByteArray, QMargins> rows[] = {
      {"", {0, 47, 0, 34}},
      {"WindowSafeArea.top: 0", {}},
      {"WindowSafeArea.top: 40; WindowSafeArea.left: height", {8, 40, 0, 0}},
  };
  for (const auto& [edges, covered] : rows) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import Device; import QuorixWidgets\nDeviceWindow {" + edges + "}", {});
    const std::unique_ptr<QObject> made(component.create());
    auto* window = qobject_cast<DeviceWindow*>(made.get());
    ASSERT_TRUE(window) << component.errorString().toStdString();
    window->setHeight(8);
    EXPECT_EQ(qt::SafeAreaWatcher(*window, [] {}).covered(), covered) << edges.data();
  }
}

}  // namespace
}  // namespace quorix::testing

#include "SafeAreaTest.moc"
