#include "tests/core/TestWindow.h"
#include "tests/core/Vectors.h"
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
  forEachRow("layout/sheet_windows", [&](simdjson::dom::element expected) {
    const bool isMirrored = ::text(expected, "direction") == "right to left";
    window.environment.direction = isMirrored ? rightToLeft : leftToRight;
    window.setMotion(false);
    const auto covered = expected["covered"];
    window.setSafeArea({covered.at(0), covered.at(1), covered.at(2), covered.at(3)});
    window.resize({expected["window"].at(0), expected["window"].at(1)});
    EXPECT_EQ(window.sheet()->panelFrame(), rect(expected["panel"]));
    EXPECT_EQ(window.element(fee).frame, rect(expected["fee"]));
  });
}

// A drag begins after 8 points, and the sheet resists when it is pushed up.
TEST_F(ScoreSheet, GoesWhenSwipedFarOrFastOrTappedOutside) {
  forEachRow("gestures/sheet_drags", [&](simdjson::dom::element drag) {
    open();
    window.sheet()->pointerPressed(point(drag["press"]));
    window.sheet()->pointerMoved(point(drag["release"]));
    EXPECT_EQ(window.sheet()->panelFrame().top(), double(drag["panelTop"]));
    window.sheet()->pointerReleased(point(drag["release"]), drag["velocity"]);
    window.settle();
    EXPECT_EQ(!window.sheet(), bool(drag["closes"]));
    if (!window.sheet()) return;
    EXPECT_EQ(panelHeight(), 305);
    window.sheet()->dismiss();
    window.settle();
  });
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

struct CountedContent {
  static constexpr std::string_view typeName = "CountedContent";
  int* bodies;
  View body() const { return ++*bodies, swiftui::Text::verbatim("x"); }
};

TEST(SheetPresenter, EvaluatesItsContentOnceToOpen) {
  int bodies = 0;
  testing::TestSheet sheet({swiftui::State<bool>{true}.binding(), CountedContent{&bodies}},
                           {320, 640}, {});
  sheet.sheet.scene();
  EXPECT_EQ(bodies, 1);
}

TEST(SheetPresenter, TakesHalfOfWhatTheSafeAreaLeavesAtTheTop) {
  const swiftui::View content = swiftui::View(swiftui::Text::verbatim("x"))
                                    .presentationDetents({swiftui::PresentationDetent::medium()});
  testing::TestSheet alone({swiftui::State<bool>{true}.binding(), content}, {320, 140},
                           {40, 0, 30, 0});
  EXPECT_EQ(alone.sheet.panelFrame().top(), 60);
}

}  // namespace
}  // namespace quorix
