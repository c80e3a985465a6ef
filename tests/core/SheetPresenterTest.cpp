#include "tests/core/TestWindow.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using foundation::MainQueue;
using swiftui::View;
using testing::TestWindow;

const std::string row = "Your return fee €4.00";

/// A score row and its sheet, which a test opens. In 320 points the sheet is 305 high.
class ScoreSheet : public ::testing::Test {
 protected:
  ScoreSheet() { testing::HeldTransport::install(); }

  TestWindow& open(bool motion = false) {
    window.setMotion(motion);
    window.act(row);
    return window;
  }
  double panelHeight() { return window.size.height - window.sheet()->panelFrame().top(); }

  std::shared_ptr<LocalizationRepository> strings = LocalizationRepository::make("en");
  TestWindow window{ScoreWidgetView{testing::scoreModel(false), strings}};
};

TEST_F(ScoreSheet, IsAsHighAsItsContent) {
  std::vector<double> heights;
  std::function<void()> watch = [&] {
    if (window.sheet()) heights.push_back(panelHeight());
    if (heights.size() < 4) MainQueue::async(watch);
  };
  window.tap(row);
  watch();
  MainQueue::drain();
  EXPECT_EQ(heights, std::vector<double>(4, 305)) << "without motion at once, in every turn";
  EXPECT_FALSE(window.sheet()->isMoving());
  window.act("Close");
  ASSERT_FALSE(window.sheet());
  window.tap(row);
  MainQueue::drain();
  EXPECT_EQ(panelHeight(), 305) << "kept over closing and opening";
}

TEST_F(ScoreSheet, FollowsItsContent) {
  open();
  strings->strings = TranslationTable::make(
      {{"returns", "disclaimer", std::string(36 * 7, 'x')}, {"actions", "close", "Shut"}});
  window.settle();
  EXPECT_EQ(panelHeight(), 305 + 3 * 20);
  window.act("Shut");
  EXPECT_FALSE(window.sheet());
}

TEST_F(ScoreSheet, FollowsTheWindowClearOfWhatTheDeviceCovers) {
  using enum layout::LayoutDirection;
  open();
  const std::string fee = window.sheet()->scene().accessibility.at(2).label;
  const struct {
    layout::LayoutDirection direction;
    layout::Size window;
    layout::SideInsets covered;
    layout::Rect panel, fee;
  } rows[] = {
      {leftToRight, {320, 640}, {47, 0, 34, 0}, {{0, 301}, {320, 339}}, {{16, 367}, {288, 24}}},
      {rightToLeft, {640, 320}, {0, 47, 21, 20}, {{0, 34}, {640, 286}}, {{63, 100}, {541, 24}}},
      {leftToRight, {700, 320}, {0, 47, 21, 20}, {{30, 34}, {640, 286}}, {{63, 100}, {591, 24}}},
      {leftToRight, {320, 200}, {47, 0, 34, 0}, {{0, 57}, {320, 143}}, {{16, 123}, {288, 24}}},
  };
  for (const auto& expected : rows) {
    window.environment.direction = expected.direction;
    window.setMotion(false);
    window.setSafeArea(expected.covered);
    window.resize(expected.window);
    EXPECT_EQ(window.sheet()->panelFrame(), expected.panel) << expected.window.width;
    EXPECT_EQ(window.element(fee).frame, expected.fee) << expected.window.width;
  }
}

TEST_F(ScoreSheet, GoesWhenSwipedFarOrFastOrTappedOutside) {
  constexpr layout::Point outside{160, 20}, inside{160, 400};
  const struct {
    layout::Point press, release;
    double velocity, panelTop;
    bool closes;
  } rows[] = {
      {inside, {160, 561}, 0, 488, true},  // a drag begins after 8 points
      {inside, {160, 560}, 0, 487, false},   {inside, {160, 428}, 601, 355, true},
      {inside, {160, 428}, 600, 355, false}, {inside, {160, 408}, 5000, 335, false},
      {inside, {160, 342}, 0, 325, false},  // resists when it is pushed up
      {inside, {160, 342}, 601, 325, true},  {outside, {10, 300}, 0, 335, true},
      {outside, inside, 0, 335, false},      {inside, outside, 0, 261, false},
  };
  for (const auto& drag : rows) {
    open();
    window.sheet()->pointerPressed(drag.press);
    window.sheet()->pointerMoved(drag.release);
    EXPECT_EQ(window.sheet()->panelFrame().top(), drag.panelTop) << drag.release.y;
    window.sheet()->pointerReleased(drag.release, drag.velocity);
    window.settle();
    EXPECT_EQ(!window.sheet(), drag.closes) << drag.release.y << " at " << drag.velocity;
    if (!window.sheet()) continue;
    EXPECT_EQ(panelHeight(), 305);
    window.sheet()->dismiss();
    window.settle();
  }
}

TEST_F(ScoreSheet, RisesAndFallsAndThenNothingMoves) {
  window.setMotion(true);
  window.tap(row);
  MainQueue::drain();
  double height = panelHeight();
  EXPECT_LT(height, 1);
  int frames = 0;
  for (bool moving = true; moving; ++frames) {
    window.sheet()->scene();
    MainQueue::drain();
    moving = window.sheet()->advance(1.0 / 60);
    EXPECT_GE(panelHeight(), height);
    height = panelHeight();
    ASSERT_LT(frames, 90);
  }
  EXPECT_GT(frames, 10);
  EXPECT_EQ(height, 305);
  EXPECT_EQ(MainQueue::drain(), 0);
  EXPECT_FALSE(window.sheet()->advance(1) || window.sheet()->isMoving());
  window.tap("Close");
  MainQueue::drain();
  for (frames = 0; window.sheet(); ++frames) {
    EXPECT_LE(panelHeight(), height);
    height = panelHeight();
    EXPECT_NEAR(window.sheet()->shade().alpha / 102.0, height / 305, 0.02);
    window.sheet()->advance(1.0 / 60);
    ASSERT_LT(frames, 90);
  }
}

TEST_F(ScoreSheet, GoesOnFromWhereAFingerCatchesIt) {
  window.setMotion(true);
  window.tap(row);
  MainQueue::drain();
  for (int i = 0; i < 3; ++i) window.sheet()->advance(1.0 / 60);
  const double caught = panelHeight();
  ASSERT_LT(caught, 200);
  const layout::Point at{160, 635};
  window.sheet()->pointerPressed(at);
  for (const double down : {10.0, 3.0, -90.0}) {
    window.sheet()->pointerMoved({at.x, at.y + down});
    EXPECT_NEAR(panelHeight(), caught - (down - 8), 1) << down;
  }
  window.sheet()->pointerMoved(at);
  window.sheet()->pointerReleased(at, 0);
  window.settle();
  ASSERT_TRUE(window.sheet()) << "it was below half its height, but not swiped there";
  EXPECT_EQ(panelHeight(), 305);
}

TEST_F(ScoreSheet, OnItsWayOutItTakesNoTapButMayBeCalledBack) {
  open(true);
  const auto close = window.element("Close").frame;
  for (int i = 0; i < 2; ++i) {
    window.tap(TestWindow::middle(close));
    MainQueue::drain();
    EXPECT_FALSE(window.sheet()->activate(1));
    EXPECT_FALSE(window.host->presentation());
  }
  window.sheet()->advance(1.0 / 60);
  window.host->activate(0);
  window.settle();
  ASSERT_TRUE(window.sheet());
  EXPECT_EQ(panelHeight(), 305);
}

TEST(SheetPresenter, TakesHalfOfWhatTheSafeAreaLeavesAtTheTop) {
  const View content = View(swiftui::Text::verbatim("x"))
                           .presentationDetents({swiftui::PresentationDetent::medium()});
  testing::TestSheet alone({swiftui::State<bool>{true}.binding(), content}, {320, 140},
                           {40, 0, 30, 0});
  EXPECT_EQ(alone.sheet.panelFrame().top(), 60);
}

}  // namespace
}  // namespace quorix
