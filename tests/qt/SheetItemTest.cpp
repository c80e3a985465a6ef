#include <gtest/gtest.h>

#include <QTest>
#include <functional>

#include "tests/qt/FeeRow.h"
#include "tests/qt/QuickScreen.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

constexpr QRectF kPlace(20, 40, 300, 0);

struct Closing {
  const char* by;
  std::function<void(QuickScreen& screen)> perform;
};

std::function<void(QuickScreen&)> pull(QPoint to, int milliseconds, bool byTouch) {
  return [=](QuickScreen& screen) { screen.drag({180, 420}, to, milliseconds, byTouch); };
}
std::function<void(QuickScreen&)> keys(QList<Qt::Key> pressed) {
  return [=](QuickScreen& screen) {
    for (const Qt::Key key : pressed) screen.key(key);
  };
}

const Closing kWays[] = {
    {"the close element", [](QuickScreen& screen) { screen.click("Close 4 €"); }},
    {"a tap outside",
     [](QuickScreen& screen) {
       screen.clickAt({180, 150});
     }},
    {"Escape", keys({Qt::Key_Escape})},
    {"the Back key", keys({Qt::Key_Back})},
    {"the keyboard on the close element", keys({Qt::Key_Tab, Qt::Key_Return})},
    {"a flick of the mouse", pull({180, 500}, 60, false)},
    {"a flick of a finger", pull({180, 500}, 60, true)},
    {"a slow pull beyond its middle", pull({180, 590}, 900, false)},
};

TEST(SheetItem, EveryWayClosesItAndGivesTheFocusBack) {
  for (const Closing& way : kWays) {
    QuickScreen screen;
    QQuickItem* field = screen.addFocusable();
    qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
    const QImage before = screen.grab();
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Space);
    ASSERT_TRUE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_FALSE(row->hasActiveFocus()) << way.by;
    way.perform(screen);
    EXPECT_FALSE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_TRUE(row->hasActiveFocus()) << way.by;
    field->forceActiveFocus();
    screen.settle();
    EXPECT_EQ(screen.grab(), before) << way.by;
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Return);
    EXPECT_TRUE(screen.shows("Fee 4 €")) << way.by << ", and again";
  }
}

TEST(SheetItem, HoldsTheFocusInside) {
  QuickScreen screen;
  screen.addFocusable();
  screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  QQuickItem* sheet = screen.window().activeFocusItem();
  for (int i = 0; i < 5; ++i) {
    screen.key(i < 3 ? Qt::Key_Tab : Qt::Key_Backtab);
    EXPECT_EQ(screen.window().activeFocusItem(), sheet);
    EXPECT_EQ(screen.find("Close 4 €")->state().focused, i % 2 == 0);
  }
}

TEST(SheetItem, KeepsInputFromWhatLiesBelow) {
  QuickScreen screen;
  QQuickItem* below = screen.addQml(R"(
      MouseArea {
        property int events
        acceptedButtons: Qt.AllButtons; hoverEnabled: true
        onPressed: ++events
        onPositionChanged: ++events
        onWheel: ++events
      })");
  below->setSize(screen.window().size());
  screen.add(FeeRow("4 €"), kPlace);
  const QPoint onPanel(180, 580);
  const auto disturb = [&] {
    below->setProperty("events", 0);
    QTest::mouseMove(&screen.window(), onPanel);
    QTest::mouseClick(&screen.window(), Qt::RightButton, {}, onPanel);
    QWheelEvent wheel(onPanel, onPanel, {0, 20}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&screen.window(), &wheel);
    screen.drag(onPanel, onPanel, 20, true);
    return below->property("events").toInt();
  };
  EXPECT_GE(disturb(), 3);
  screen.click("Row 4 €");
  EXPECT_EQ(disturb(), 0);
  EXPECT_TRUE(screen.shows("Fee 4 €"));
}

TEST(SheetItem, RowsOfOneWindowHaveTheirOwn) {
  QuickScreen screen;
  screen.add(FeeRow("4 €"), kPlace);
  screen.add(FeeRow("9 €"), kPlace.translated(0, 100));
  for (const QString fee : {"9 €", "4 €"}) {
    screen.click("Row " + fee);
    EXPECT_EQ(screen.shows("Fee 4 €"), fee == "4 €");
    EXPECT_EQ(screen.shows("Fee 9 €"), fee == "9 €");
    screen.key(Qt::Key_Escape);
  }
}

TEST(SheetItem, GoesWithItsRow) {
  QuickScreen screen;
  QQuickItem* field = screen.addFocusable();
  qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
  screen.click("Row 4 €");
  delete row;
  EXPECT_FALSE(screen.shows("Fee 4 €"));
  screen.settle();
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(field->hasActiveFocus());
}

/// Its sheet asks the host to take the row away.
struct Leaving {
  static constexpr std::string_view typeName = "Leaving";
  std::function<void()> leave;
  swiftui::State<bool> shown{false};
  auto states() const { return std::tie(shown); }
  View body() const {
    return View(Text::verbatim("open"))
        .onTapGesture([binding = shown.binding()] { binding.toggle(); })
        .sheet(shown.binding(), View(Text::verbatim("leave")).onTapGesture(leave));
  }
};

TEST(SheetItem, MayEndItsRowFromInside) {
  QuickScreen screen;
  qt::ViewItem* row = nullptr;
  row = screen.add(Leaving{[&] { delete row; }}, kPlace);
  screen.click("open");
  screen.click("leave");
  EXPECT_FALSE(screen.shows("leave"));
}

TEST(SheetItem, GoesWithItsWindowAndToAnotherOne) {
  QuickScreen first;
  QuickScreen second;
  qt::ViewItem* row = first.add(FeeRow("4 €"), kPlace);
  first.click("Row 4 €");
  row->setParentItem(second.window().contentItem());
  row->setParent(second.window().contentItem());
  second.settle();
  EXPECT_FALSE(first.shows("Fee 4 €"));
  EXPECT_TRUE(second.shows("Fee 4 €"));
  second.closeWindow();
}

TEST(SheetItem, RisesOverSeveralFramesAndThenRests) {
  QuickScreen screen;
  qt::ViewItem* row = screen.add(FeeRow("4 €"), kPlace);
  row->setMotion(true);
  int frames = 0;
  QObject::connect(&screen.window(), &QQuickWindow::frameSwapped, row, [&] { ++frames; });
  screen.click("Row 4 €");
  EXPECT_GT(frames, 5);
  frames = 0;
  QTest::qWait(100);
  EXPECT_EQ(frames, 0);
}

}  // namespace
}  // namespace quorix::testing
