#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

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
      {"Tab", pressing({Qt::Key_Tab, Qt::Key_Tab}), 396},
      {"a screen reader", acting("End", QAccessibleActionInterface::setFocusAction()), 396},
  };
  TypeParam screen;
  const auto eventsBelow = screen.listenBelow();
  screen.add(tallOpener(), kPlace);
  screen.click("More");
  ASSERT_TRUE(screen.find("End")->state().offscreen);
  const int top = screen.find("Top")->rect().top();
  const int below = eventsBelow();
  for (const auto& row : rows) {
    const QImage before = screen.grab();
    row.perform(screen);
    screen.settle();
    EXPECT_EQ(top - screen.find("Top")->rect().top(), row.to) << row.by;
    EXPECT_NE(screen.grab(), before) << row.by;
    screen.key(Qt::Key_Home);
    EXPECT_EQ(screen.find("Top")->rect().top(), top) << row.by;
  }
  EXPECT_EQ(eventsBelow(), below);
  screen.drag({180, 300}, {180, 380}, 20, true);
  EXPECT_FALSE(screen.shows("Top")) << "a flick at the top closes";
}

TYPED_TEST(ScrollingSheet, GoesOnAfterAFling) {
  TypeParam screen;
  screen.add(tallOpener(), kPlace)->setMotion(true);
  screen.click("More");
  const int top = screen.find("Top")->rect().top();
  screen.drag({180, 400}, {180, 350}, 60, true);
  EXPECT_GT(top - screen.find("Top")->rect().top(), 100);
}

}  // namespace
}  // namespace quorix::testing
