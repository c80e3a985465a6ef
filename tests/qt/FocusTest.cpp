#include "tests/qt/Pixels.h"
#include "tests/qt/Screens.h"
#include "tests/web/LogListener.h"

namespace quorix::testing {
namespace {

using swiftui::Text;
using swiftui::View;

SCREENS_TEST_SUITE(Focus);

TYPED_TEST(Focus, TabReachesTheRowShowsARingAroundItAndLeaves) {
  TypeParam screen;
  auto* other = screen.addFocusable();
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  const QRect place = screen.placeOf(row);
  const QImage plain = screen.grab();
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(row));
  const QRect ring = differing(plain, screen.grab());
  EXPECT_GE(ring.width(), place.width());
  EXPECT_TRUE(place.adjusted(-5, -5, 5, 5).contains(ring));
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(other));
  EXPECT_EQ(screen.grab(), plain);
  screen.key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(screen.hasFocus(row));
  // A press takes or keeps the focus and shows no ring.
  for (const bool before : {true, false}) {
    if (!before) screen.focus(other);
    QTest::mousePress(&screen.window(), Qt::LeftButton, {}, place.center());
    screen.settle();
    EXPECT_TRUE(screen.hasFocus(row));
    EXPECT_EQ(screen.grab(), plain);
    QTest::mouseRelease(&screen.window(), Qt::LeftButton, {}, {1, 300});
  }
}

TYPED_TEST(Focus, ReturnsToWhatAssistiveTechnologyPressed) {
  TypeParam screen;
  auto* other = screen.addFocusable();
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  screen.focus(other);
  screen.act("Row 4 €", QAccessibleActionInterface::pressAction());
  ASSERT_TRUE(screen.shows("Terms"));
  screen.key(Qt::Key_Escape);
  EXPECT_TRUE(screen.hasFocus(row));
}

TYPED_TEST(Focus, WalksThroughTheElementsThatActAndOn) {
  TypeParam screen;
  std::string taps;
  const auto button = [&](const char* name) {
    return View(Text::verbatim(name)).onTapGesture([&taps, name] { taps += name; });
  };
  auto* before = screen.addFocusable();
  auto* view = screen.add(swiftui::VStack(layout::HorizontalAlignment::leading, 4,
                                          {button("A"), Text::verbatim("text"), button("B")}),
                          kPlace);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
    screen.key(Qt::Key_Tab);
    screen.key(key);
  }
  EXPECT_EQ(taps, "AB");
  EXPECT_TRUE(screen.hasFocus(view));
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(before));
  screen.key(Qt::Key_Return);
  screen.key(Qt::Key_Backtab, Qt::ShiftModifier);
  screen.key(Qt::Key_Select);
  screen.key(Qt::Key_Tab, Qt::ShiftModifier);
  screen.key(Qt::Key_Enter);
  EXPECT_EQ(taps, "ABBA");
}

TYPED_TEST(Focus, LeavesAViewInWhichNothingActsAnyMore) {
  for (const bool behindASheet : {false, true}) {
    for (const bool all : {true, false}) {
      TypeParam screen;
      auto* first = screen.addFocusable();
      auto* row = screen.add(FeeRow("4 €"), kPlace);
      auto* next = screen.addFocusable();
      screen.focus(row);
      if (behindASheet) screen.key(Qt::Key_Return);
      ASSERT_EQ(screen.hasFocus(row), !behindASheet);
      const LogListener log;
      row->setView(all ? View() : View(Text::verbatim("Text")));
      screen.settle();
      EXPECT_TRUE(screen.hasFocus(next)) << behindASheet << all;
      screen.key(Qt::Key_Tab);
      EXPECT_TRUE(screen.hasFocus(first)) << behindASheet << all;
      EXPECT_TRUE(LogListener::lines().isEmpty());
    }
  }
}

TYPED_TEST(Focus, GoesNowhereWhereNothingElseTakesIt) {
  TypeParam screen;
  auto* row = screen.add(FeeRow("4 €"), kPlace);
  screen.key(Qt::Key_Tab);
  ASSERT_TRUE(screen.hasFocus(row));
  const LogListener log;
  row->setView(View());
  screen.settle();
  EXPECT_FALSE(screen.hasFocus(row));
  row->setView(FeeRow("9 €"));
  screen.settle();
  screen.key(Qt::Key_Tab);
  EXPECT_TRUE(screen.hasFocus(row));
  EXPECT_TRUE(LogListener::lines().isEmpty());
}

}  // namespace
}  // namespace quorix::testing
