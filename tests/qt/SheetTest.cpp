#include <QLabel>

#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

SCREENS_TEST_SUITE(Sheet);

using enum qt::SheetCloseReason;

const struct {
  const char* by;
  Act perform;
  qt::SheetCloseReason reason;
} kWays[] = {
    {"the close element", clicking("Close 4 €"), Button},
    {"a tap outside", dragging({180, 150}, {180, 150}, 0, false), Outside},
    {"Escape", pressing({Qt::Key_Escape}), Key},
    {"the Back key", pressing({Qt::Key_Back}), Key},
    {"the keyboard on the close element, after walks beyond both ends",
     pressing({Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab,
               Qt::Key_Backtab, Qt::Key_Return}),
     Button},
    {"a flick of the mouse", dragging({180, 420}, {180, 500}, 60, false), Swipe},
    {"a flick of a finger", dragging({180, 420}, {180, 500}, 60, true), Swipe},
    {"a slow pull beyond its middle", dragging({180, 420}, {180, 590}, 900, false), Swipe},
};

TYPED_TEST(Sheet, EveryWayClosesItAndGivesTheFocusBack) {
  for (const auto& way : kWays) {
    TypeParam screen;
    auto* field = screen.addFocusable();
    auto* row = screen.add(FeeRow("4 €"), kPlace);
    const Told told(*row);
    const QImage before = screen.grab();
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Space);
    ASSERT_TRUE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_FALSE(screen.hasFocus(row)) << way.by;
    way.perform(screen);
    EXPECT_FALSE(screen.shows("Fee 4 €")) << way.by;
    EXPECT_EQ(*told, (QVariantList{"activated", "opened", int(way.reason)})) << way.by;
    EXPECT_TRUE(screen.hasFocus(row)) << way.by;
    screen.focus(field);
    screen.settle();
    EXPECT_EQ(screen.grab(), before) << way.by;
    screen.key(Qt::Key_Tab);
    screen.key(Qt::Key_Return);
    EXPECT_TRUE(screen.shows("Fee 4 €")) << way.by << ", and again";
  }
}

/// A sheet with a button for a second sheet, whose row opens a third.
swiftui::View nested() {
  const auto height = swiftui::PresentationDetent::height(300);
  return Opener{swiftui::View(Opener{swiftui::View(FeeRow("4 €")).presentationDetents({height})})
                    .presentationDetents({height})};
}

TYPED_TEST(Sheet, ItsContentPresentsFurtherSheetsAboveIt) {
  TypeParam screen;
  const EventCount pointer(screen.addBelow(), kPointer);
  auto* row = screen.add(nested(), kPlace);
  QAccessibleInterface* sheets[3] = {};
  screen.key(Qt::Key_Tab);
  ASSERT_TRUE(screen.hasFocus(row));
  for (int depth = 0; depth < 3; ++depth) {
    screen.key(Qt::Key_Return);
    sheets[depth] = QAccessible::queryAccessibleInterface(QGuiApplication::focusObject());
    if (depth < 2) screen.key(Qt::Key_Tab);
    for (int below = 0; below <= depth; ++below) {
      EXPECT_EQ(sheets[below]->state().modal, below == depth) << below << " of " << depth;
      EXPECT_EQ(sheets[below]->state().invisible, below != depth);
    }
  }
  EXPECT_TRUE(screen.shows("Fee 4 €"));
  EXPECT_FALSE(screen.shows("More"));
  auto* late = screen.addFocusable();  // in the window's corner, below all three sheets
  screen.settle();
  EXPECT_FALSE(screen.hasFocus(late));
  const int before = pointer.count;
  screen.click("Close 4 €");
  EXPECT_FALSE(screen.shows("Fee 4 €"));
  EXPECT_TRUE(screen.shows("Row 4 €"));
  screen.key(Qt::Key_Escape);
  EXPECT_FALSE(screen.shows("Row 4 €"));
  EXPECT_TRUE(sheets[0]->state().modal);
  QTest::mouseClick(&screen.window(), Qt::LeftButton, {}, {5, 5});  // outside the panel
  EXPECT_EQ(pointer.count, before);
  screen.settle();  // in the next frame, the pointer may enter the object below
  EXPECT_TRUE(screen.hasFocus(row));
  EXPECT_TRUE(screen.shows("More"));
}

TYPED_TEST(Sheet, GoesWithItsRowAndTakesFurtherOnesAlong) {
  for (const bool deleted : {false, true}) {
    TypeParam screen;
    auto* field = screen.addFocusable();
    auto* row = screen.add(nested(), kPlace);
    const Told told(*row);
    screen.focus(field);
    for (const char* name : {"More", "More", "Row 4 €"}) screen.click(name);
    ASSERT_TRUE(screen.shows("Fee 4 €"));
    deleted ? delete row : row->setView(swiftui::Text::verbatim("Other"));
    screen.settle();
    EXPECT_EQ(*told, (QVariantList{"activated", "opened", int(Host)}));
    EXPECT_FALSE(screen.shows("Fee 4 €"));
    EXPECT_EQ(screen.shows("Other"), !deleted);
    screen.key(Qt::Key_Tab);
    EXPECT_TRUE(screen.hasFocus(field));
  }
}

TYPED_TEST(Sheet, WhatHearsOfItMayEndItsRow) {
  using Row = std::remove_pointer_t<decltype(TypeParam().add({}, kPlace))>;
  for (const int at : {0, 1, 2, 3}) {
    TypeParam screen;
    Row* row = nullptr;
    const auto end = [&] { delete std::exchange(row, nullptr); };
    FeeRow leaving("4 €");
    leaving.terms = end;
    row = screen.add(leaving, kPlace);
    if (at == 0) QObject::connect(row, &Row::activated, end);
    if (at == 1) QObject::connect(row, &Row::sheetOpened, end);
    if (at == 2) QObject::connect(row, &Row::sheetClosed, end);
    screen.click("Row 4 €");
    at == 3 ? screen.click("Terms") : screen.key(Qt::Key_Escape);
    EXPECT_FALSE(row) << at;
    EXPECT_FALSE(screen.shows("Fee 4 €")) << at;
  }
}

/// A tap may delete its own view, in each of these ways.
TYPED_TEST(Sheet, ItsRowMayEndItself) {
  const Way means[] = {
      {"a click", clicking("Leave")},
      {"a finger",
       [](Screen& screen) {
         screen.drag(screen.centerOf("Leave"), screen.centerOf("Leave"), 20, true);
       }},
      {"a key", pressing({Qt::Key_Tab, Qt::Key_Return})},
      {"a screen reader", acting("Leave", QAccessibleActionInterface::pressAction())},
  };
  for (const auto& way : means) {
    SCOPED_TRACE(way.by);
    TypeParam screen;
    auto* field = screen.addFocusable();
    decltype(screen.add({}, kPlace)) row = nullptr;
    row = screen.add(
        swiftui::View(swiftui::Text::verbatim("Leave")).onTapGesture([&] { delete row; }), kPlace);
    way.perform(screen);
    EXPECT_FALSE(screen.shows("Leave"));
    screen.key(Qt::Key_Tab);
    EXPECT_TRUE(screen.hasFocus(field));
  }
}

TYPED_TEST(Sheet, GoesWithItsWindowAndToAnotherOne) {
  TypeParam first;
  TypeParam second;
  auto* row = first.add(FeeRow("4 €"), kPlace);
  first.click("Row 4 €");
  second.adopt(row);
  second.settle();
  EXPECT_FALSE(first.shows("Fee 4 €"));
  EXPECT_TRUE(second.shows("Fee 4 €"));
  second.closeWindow();
}

SCREENS_TEST_SUITE(ScrollingSheet);

/// Opens a sheet with 1000 points of content, with a button at its top and one at its end.
swiftui::View tallOpener() {
  const auto text = [](const char* name) { return swiftui::View(swiftui::Text::verbatim(name)); };
  return Opener{swiftui::VStack(
      layout::HorizontalAlignment::center, 0,
      {text("Top").frame(300, 100).onTapGesture([] {}), text("Middle").frame(300, 800),
       text("End").frame(300, 100).onTapGesture([] {})})};
}

TYPED_TEST(ScrollingSheet, ScrollsByWhateverTheUserHas) {
  const QPoint at(180, 400), up(180, 292);  // a drag begins after 8 points
  const struct {
    const char* by;
    Act perform;
    int to;
  } rows[] = {
      {"a notch of the wheel", turning(at, {}, {0, -120}), 60},
      {"two fingers", turning(at, {0, -33}, {0, -90}, Qt::ScrollUpdate), 33},
      {"the mouse", dragging(at, up, 900, false), 100},
      {"a finger", dragging(at, up, 60, true), 100},
      {"an arrow", pressing({Qt::Key_Down}), 40},
      {"a page", pressing({Qt::Key_PageDown}), 410},
      {"the end", pressing({Qt::Key_End}), 410},
      {"a screen reader", acting("End", QAccessibleActionInterface::setFocusAction()), 396},
  };
  TypeParam screen;
  const EventCount below(screen.addBelow(), kPointer);
  screen.add(tallOpener(), kPlace);
  const auto disturb = [&] {
    QTest::mouseMove(&screen.window(), at);
    QTest::mouseClick(&screen.window(), Qt::RightButton, {}, at);
    screen.wheel(at, {0, 20}, {0, 120});
    screen.drag(at, at, 20, true);
  };
  disturb();
  EXPECT_GE(below.count, 3);
  screen.click("More");
  ASSERT_TRUE(screen.find("End")->state().offscreen);
  const int top = screen.find("Top")->rect().top();
  const int before = below.count;
  disturb();
  for (const auto& row : rows) {
    const QImage still = screen.grab();
    row.perform(screen);
    screen.settle();
    EXPECT_EQ(top - screen.find("Top")->rect().top(), row.to) << row.by;
    EXPECT_NE(screen.grab(), still) << row.by;
    screen.key(Qt::Key_Home);
    EXPECT_EQ(screen.find("Top")->rect().top(), top) << row.by;
  }
  EXPECT_EQ(below.count, before);
  screen.drag({180, 300}, {180, 380}, 20, true);
  EXPECT_FALSE(screen.shows("Top")) << "a flick at the top closes";
}

TYPED_TEST(ScrollingSheet, MovesOverSeveralFramesThenRestsAndGoesWithItsWindowInMidMotion) {
  TypeParam screen;
  screen.add(tallOpener(), kPlace)->setMotion(true);
  const int before = screen.frames();
  screen.click("More");
  EXPECT_GT(screen.frames(), before + 5);
  const int top = screen.find("Top")->rect().top();
  screen.drag({180, 400}, {180, 350}, 60, true);
  EXPECT_GT(top - screen.find("Top")->rect().top(), 100) << "goes on after a fling";
  const int moved = screen.frames();
  QTest::qWait(100);
  EXPECT_EQ(screen.frames(), moved);
  QTest::keyClick(&screen.window(), Qt::Key_Escape);
  QTest::qWait(50);
  screen.closeWindow();
  QTest::qWait(50);
}

TEST(SheetInWidgets, IsNotPaintedByAHostsStyleSheet) {
  WidgetScreen screen;
  screen.host().setStyleSheet("QWidget { background: #ff0000 } QLabel { background: #0000ff }");
  QLabel page(&screen.host());
  page.setGeometry(screen.host().rect());
  page.show();
  screen.add(FeeRow("4 €"), kPlace)->setStyleSheet("background: #0000ff");
  screen.click("Row 4 €");
  const QImage shown = screen.grab();
  int red = 0;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QColor color = shown.pixelColor(x, y);
      red += color.red() > color.blue() + 60;
    }
  }
  EXPECT_EQ(red, 0);
}

}  // namespace
}  // namespace quorix::testing
