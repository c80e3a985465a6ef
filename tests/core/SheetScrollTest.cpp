#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

using swiftui::View;

struct Shown {
  swiftui::State<bool> shown{true};
  std::string acted;
};

/// 700 points of content in a panel of 300, with a button at the top and one at the end.
struct LongSheet : Shown, testing::TestSheet {
  explicit LongSheet(layout::LayoutDirection direction = {})
      : TestSheet({shown.binding(), content()}, {320, 640}, {}) {
    swiftui::Environment settings;
    settings.direction = direction;
    sheet.setEnvironment(settings);
    sheet.settle();
  }

  View content() {
    const auto button = [this](const char* name) {
      return View(swiftui::Text::verbatim(name))
          .onTapGesture([this, name] { acted += name; })
          .frame(320, 100);
    };
    return View(swiftui::VStack(layout::HorizontalAlignment::center, 0,
                                {button("Top"), View(swiftui::Text::verbatim("")).frame(320, 500),
                                 button("End")}))
        .presentationDetents({swiftui::PresentationDetent::height(300)});
  }
  /// How far the text of the last button has moved up.
  double offset() {
    return sheet.panelFrame().top() + 639 - sheet.scene().accessibility.back().frame.top();
  }
  /// Drags a finger by `by` after the slop, and lifts it if there is a velocity.
  void drag(double by, std::optional<double> velocity = std::nullopt) {
    sheet.pointerPressed({160, 480 - std::copysign(8, by)});
    sheet.pointerMoved({160, 480 + by});
    if (velocity) sheet.pointerReleased({160, 480 + by}, *velocity);
  }
  void twoFingers(double by) { sheet.scroll({by, true}); }
  void tap(double y) {
    sheet.pointerPressed({160, y});
    sheet.pointerReleased({160, y}, 0);
  }
  /// The scroll indicator; absent while it is hidden.
  std::optional<layout::Rect> indicator() {
    const auto* last = std::get_if<render::FillItem>(&sheet.scene().items.back());
    return last ? std::optional(last->frame) : std::nullopt;
  }
  /// Runs frames until all motion has ended. Returns their number.
  int rest() {
    int frames = 0;
    while (sheet.advance(1.0 / 60)) ++frames;
    return frames;
  }
};

TEST(SheetScroll, ScrollsContentThatIsTallerThanThePanel) {
  using hosting::Key;
  const struct {
    const char* by;
    std::function<void(LongSheet&)> perform;
    double from, to;
    bool closes = false;
  } rows[] = {
      {"a page back", [](auto& in) { in.sheet.scroll(Key::pageUp); }, 300, 40},
      {"the end", [](auto& in) { in.sheet.scroll(Key::end); }, 10, 400},
      {"a wheel", [](auto& in) { in.sheet.scroll({60}); }, 30, 90},
      {"Tab", [](auto& in) { in.sheet.moveFocus(false); }, 0, 385},
      {"a screen reader", [](auto& in) { in.sheet.focus(0); }, 400, 15},
      {"a drag beyond the end", [](auto& in) { in.drag(-100); }, 350, 410},
      {"the same, let go", [](auto& in) { in.drag(-100, 0); }, 350, 400},
      {"a fast one, without motion", [](auto& in) { in.drag(-100, -900); }, 0, 100},
      {"a drag that ends at the top", [](auto& in) { in.drag(150, 900); }, 50, 0},
      {"a drag on, far down", [](auto& in) { in.drag(201, 0); }, 50, 0, true},
      {"a flick at the top", [](auto& in) { in.drag(20, 601); }, 0, 0, true},
      {"a flick back from further down", [](auto& in) { in.drag(-100, 601); }, 0, 100},
  };
  for (const auto& row : rows) {
    LongSheet in;
    in.twoFingers(row.from);
    row.perform(in);
    EXPECT_EQ(in.offset(), row.to) << row.by;
    EXPECT_EQ(in.shown.binding().get(), !row.closes) << row.by;
  }
}

TEST(SheetScroll, HandsADragAtTheTopOverToThePanelAndBack) {
  LongSheet in;
  in.twoFingers(50);
  const struct {
    double by, offset, panelTop;
  } rows[] = {{30, 20, 340}, {50, 0, 340}, {90, 0, 380}, {-10, 60, 340}};
  in.sheet.pointerPressed({160, 472});
  for (const auto& row : rows) {
    in.sheet.pointerMoved({160, 480 + row.by});
    EXPECT_EQ(in.offset(), row.offset) << row.by;
    EXPECT_EQ(in.sheet.panelFrame().top(), row.panelTop) << row.by;
  }
}

TEST(SheetScroll, TapsOnlyWhatIsInSight) {
  LongSheet in;
  in.twoFingers(65);  // the button's end is 4 points above the panel's
  in.tap(345);
  EXPECT_EQ(in.acted, "");
  EXPECT_TRUE(in.sheet.isScrolledAway(in.sheet.scene().accessibility.front().frame));
  in.twoFingers(-20);
  EXPECT_FALSE(in.sheet.isScrolledAway(in.sheet.scene().accessibility.front().frame));
  in.tap(345);
  in.twoFingers(355);
  in.tap(590);
  in.sheet.activate(0);
  EXPECT_EQ(in.acted, "TopEndTop");
}

TEST(SheetScroll, AFlingSlowsDownAndAPressStopsIt) {
  LongSheet in;
  in.sheet.setMotion(true);
  in.drag(-20, -600);
  double before = in.offset();
  double step = layout::infinity;
  for (int frame = 0; frame < 30; ++frame) {
    EXPECT_TRUE(in.sheet.advance(1.0 / 60));
    EXPECT_LE(in.offset() - before, step + 1);  // on whole pixels
    step = in.offset() - std::exchange(before, in.offset());
    EXPECT_GT(step, 0);
  }
  in.tap(480);
  EXPECT_NEAR(in.offset(), before, 1);
  in.rest();
  EXPECT_NEAR(in.offset(), before, 1);
  in.drag(-20, -5000);
  in.rest();
  EXPECT_EQ(in.offset(), 400);
  in.sheet.scroll(hosting::Key::home);
  in.tap(590);
  EXPECT_EQ(in.acted, "") << "a press on what moves is no tap";
}

TEST(SheetScroll, ShowsItsScrollIndicatorForASecond) {
  for (const bool rightToLeft : {false, true}) {
    LongSheet in(rightToLeft ? layout::LayoutDirection::rightToLeft
                             : layout::LayoutDirection::leftToRight);
    EXPECT_FALSE(in.indicator()) << "settled";
    for (const bool motion : {false, true}) {
      in.sheet.setMotion(motion);
      in.sheet.scroll(hosting::Key::home);
      in.sheet.scroll(hosting::Key::down);
      in.sheet.scroll(hosting::Key::end);
      EXPECT_GT(in.rest(), 50);
      EXPECT_FALSE(in.indicator());
      in.twoFingers(-200);
      ASSERT_TRUE(in.indicator());
      EXPECT_EQ(in.indicator()->left(), rightToLeft ? 3 : 314);
      EXPECT_EQ(in.indicator()->size.width, 3);
      EXPECT_NEAR(in.indicator()->top() + in.indicator()->size.height / 2, 340 + 12 + 144, 1);
      in.rest();
    }
  }
}

TEST(SheetScroll, KeepsToItsContentsEndWhenTheWindowGrows) {
  LongSheet in;
  in.sheet.scroll(hosting::Key::end);
  in.sheet.setWindow({320, 260}, {});
  EXPECT_EQ(in.offset(), 400);
  in.sheet.scroll(hosting::Key::end);
  EXPECT_EQ(in.offset(), 450);
  in.sheet.setWindow({320, 640}, {});
  EXPECT_EQ(in.offset(), 400);
}

}  // namespace
}  // namespace quorix
