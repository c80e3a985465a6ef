#include <QPushButton>
#include <QScrollArea>

#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// The sheet that a tap at `point` opens: "4 €", another row's or none.
QString tap(Screen& screen, QPoint point) {
  screen.drag(point, point, 0, true);
  for (const char* fee : {"4 €", "3 €", "2 €"}) {
    if (!screen.shows("Fee " + QString(fee))) continue;
    screen.key(Qt::Key_Escape);
    return fee;
  }
  return {};
}

/// A row is about 20 points high and takes taps in 44.
SCREENS_TEST_SUITE(TapRoom);

std::function<int()> addButton(QuickScreen& screen, QRect place) {
  QQuickItem* button = screen.addQml("MouseArea { property int taps; onClicked: ++taps }");
  button->setPosition(place.topLeft());
  button->setSize(place.size());
  return [button] { return button->property("taps").toInt(); };
}

std::function<int()> addButton(WidgetScreen& screen, QRect place) {
  auto* button = new QPushButton(&screen.host());
  button->setGeometry(place);
  button->show();
  auto taps = std::make_shared<int>();
  QObject::connect(button, &QPushButton::clicked, button, [taps] { ++*taps; });
  return [taps] { return *taps; };
}

TYPED_TEST(TapRoom, ReachesAroundARowAndNoFurtherThanHalfwayToTheNext) {
  TypeParam screen;
  screen.add(FeeRow("3 €"), {20, 134, 300, 20});
  screen.add(FeeRow("4 €"), {20, 100, 300, 20});
  screen.add(FeeRow("2 €"), {20, 200, 300, 44});
  const std::pair<QPoint, QString> rows[] = {
      {{100, 110}, "4 €"}, {{100, 91}, "4 €"},  {{100, 85}, ""},
      {{100, 124}, "4 €"}, {{100, 129}, "3 €"}, {{8, 110}, ""},    // the row is wide enough
      {{100, 201}, "2 €"}, {{100, 242}, "2 €"}, {{100, 247}, ""},  // the item is high enough
  };
  for (const auto& [point, opens] : rows) EXPECT_EQ(tap(screen, point), opens) << point.y();
}

TYPED_TEST(TapRoom, IsTheHostsWhereTheHostTakesTaps) {
  TypeParam screen;
  const auto above = addButton(screen, {20, 70, 300, 30});
  screen.add(FeeRow("4 €"), {20, 100, 300, 20});
  const auto below = addButton(screen, {20, 120, 300, 30});
  EXPECT_EQ(tap(screen, {100, 95}) + tap(screen, {100, 125}), "");
  EXPECT_EQ(above(), 1);
  EXPECT_EQ(below(), 1);
}

TEST(TapRoomInQuick, APageThatScrollsIsNoButton) {
  QuickScreen screen;
  QQuickItem* page = screen.addQml(R"(
      import QtQuick.Controls
      Page {
        width: 360; height: 600
        Flickable {
          anchors.fill: parent; contentHeight: 2000; clip: true
          Row { y: 300; width: 300 }
        }
      })");
  auto* row = page->findChild<qt::ViewItem*>();
  auto* flickable = row->parentItem()->parentItem();
  row->setView(FeeRow("4 €"));
  row->setMotion(false);
  screen.settle();
  // A drag from the row, and from the enlarged tap area above it.
  for (const auto& [from, byTouch] : {std::pair(310, false), {310, true}, {295, true}}) {
    screen.drag({100, from}, {100, from - 100}, 200, byTouch);
    QTest::qWait(300);
    EXPECT_FALSE(screen.shows("Fee 4 €")) << from << byTouch;
    EXPECT_GT(flickable->property("contentY").toDouble(), 50) << from << byTouch;
    flickable->setProperty("contentY", 0);
    screen.settle();
  }
  EXPECT_EQ(tap(screen, {100, screen.placeOf(row).top() - 5}), "4 €");
  flickable->setProperty("contentY", 300 + row->height() + 2);
  screen.settle();
  EXPECT_EQ(tap(screen, {100, 3}), "") << "scrolled out of sight";
}

TEST(TapRoomInQuick, ReachesOutOfAnItemThatFitsTheRow) {
  QuickScreen screen;
  QQuickItem* page = screen.addQml(R"(
      Item {
        Item {
          x: 20; y: 100; width: 300; height: 20
          Text { text: "beside it" }
          Row { anchors.fill: parent }
        }
        MouseArea { y: 400; width: 10; height: 10 }
      })");
  auto* row = page->findChild<qt::ViewItem*>();
  row->setMotion(false);
  EXPECT_EQ(tap(screen, {100, 91}), "") << "it shows nothing yet";
  row->setView(FeeRow("4 €"));
  screen.settle();
  EXPECT_EQ(tap(screen, {100, 91}), "4 €");
  row->parentItem()->setHeight(10);
  screen.settle();
  EXPECT_EQ(tap(screen, {100, 91}), "4 €") << "in another size";
}

TEST(TapRoomInWidgets, IsForFingersAndInSight) {
  WidgetScreen screen;
  auto* area = new QScrollArea(&screen.host());
  auto* page = new QWidget;
  page->resize(300, 2000);
  auto* row = new qt::ViewWidget(FeeRow("4 €"), page);
  row->setMotion(false);
  row->setGeometry(0, 100, 300, 20);
  area->setWidget(page);
  area->setGeometry(0, 50, 360, 400);
  area->show();
  screen.settle();
  const QPoint beside = row->mapTo(&screen.host(), QPoint(100, -5));
  screen.clickAt(beside);
  EXPECT_FALSE(screen.shows("Fee 4 €")) << "a mouse points exactly, and its cursor says so";
  EXPECT_EQ(tap(screen, beside), "4 €");
  row->move(0, page->mapFrom(&screen.host(), QPoint(0, 28)).y());  // 2 pixels out of sight
  screen.settle();
  EXPECT_EQ(tap(screen, {100, 53}), "");
}

}  // namespace
}  // namespace quorix::testing
