#include <gtest/gtest.h>

#include <QAccessible>
#include <QWheelEvent>
#include <functional>
#include <string_view>
#include <tuple>

#include "platform/swiftui/Elements.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

template <class>
struct ScrollingSheet : ::testing::Test {};
TYPED_TEST_SUITE(ScrollingSheet, Screens, ScreenName);

/// Opens a sheet of 1000 points with a button at its top and one at its end.
struct TallOpener {
  static constexpr std::string_view typeName = "TallOpener";
  swiftui::State<bool> shown{false};

  auto states() const { return std::tie(shown); }
  swiftui::View body() const {
    const auto text = [](const char* name) { return swiftui::View(swiftui::Text::verbatim(name)); };
    const swiftui::View sheet = swiftui::VStack(
        layout::HorizontalAlignment::center, 0,
        {text("Top").frame(300, 100).onTapGesture([] {}), text("Middle").frame(300, 800),
         text("End").frame(300, 100).onTapGesture([] {})});
    return text("More")
        .onTapGesture([flag = shown.binding()] { flag.toggle(); })
        .sheet(shown.binding(), sheet);
  }
};

std::function<void(Screen&)> press(Qt::Key key) {
  return [=](Screen& screen) { screen.key(key); };
}

void turnWheel(Screen& screen, QPoint pixels, QPoint angle, Qt::ScrollPhase phase) {
  const QPoint at(180, 400);
  QWheelEvent wheel(at, at, pixels, angle, Qt::NoButton, {}, phase, false);
  QCoreApplication::sendEvent(&screen.window(), &wheel);
  screen.settle();
}

TYPED_TEST(ScrollingSheet, ScrollsByWhateverTheUserHas) {
  const struct {
    const char* by;
    std::function<void(Screen& screen)> perform;
    int to;
  } rows[] = {
      {"a notch of the wheel",
       [](Screen& screen) {
         turnWheel(screen, {}, {0, -120}, Qt::NoScrollPhase);
       },
       60},
      {"two fingers",
       [](Screen& screen) {
         turnWheel(screen, {0, -33}, {0, -90}, Qt::ScrollUpdate);
       },
       33},
      {"the mouse",
       [](Screen& screen) {
         screen.drag({180, 400}, {180, 300}, 900, false);
       },
       100},
      {"a finger",
       [](Screen& screen) {
         screen.drag({180, 400}, {180, 300}, 60, true);
       },
       100},
      {"an arrow", press(Qt::Key_Down), 40},
      {"a page", press(Qt::Key_PageDown), 410},
      {"the end", press(Qt::Key_End), 410},
      {"Tab", [](Screen& screen) { screen.key(Qt::Key_Tab), screen.key(Qt::Key_Tab); }, 396},
      {"a screen reader",
       [](Screen& screen) {
         screen.find("End")->actionInterface()->doAction(
             QAccessibleActionInterface::setFocusAction());
         screen.settle();
       },
       396},
  };
  TypeParam screen;
  const auto eventsBelow = screen.listenBelow();
  screen.add(TallOpener{}, kPlace);
  screen.click("More");
  ASSERT_TRUE(screen.find("End")->state().offscreen);
  const int top = screen.find("Top")->rect().top();
  const int below = eventsBelow();
  for (const auto& row : rows) {
    const QImage before = screen.grab();
    row.perform(screen);
    EXPECT_EQ(top - screen.find("Top")->rect().top(), row.to) << row.by;
    EXPECT_NE(screen.grab(), before) << row.by;
    screen.key(Qt::Key_Home);
    EXPECT_EQ(screen.find("Top")->rect().top(), top) << row.by;
  }
  EXPECT_EQ(eventsBelow(), below);
  screen.drag({180, 300}, {180, 380}, 60, true);
  EXPECT_FALSE(screen.shows("Top")) << "a flick at the top closes";
}

}  // namespace
}  // namespace quorix::testing
