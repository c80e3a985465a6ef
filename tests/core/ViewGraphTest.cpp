#include "tests/core/TestWindow.h"
#include "tests/qt/FeeRow.h"

namespace quorix {
namespace {

using foundation::MainQueue;
using swiftui::Text;
using swiftui::View;
using testing::TestWindow;
using testing::Watched;

/// Shows "name value". A tap adds one.
struct Counter {
  static constexpr std::string_view typeName = "Counter";
  std::string name;
  swiftui::State<int> count{0};
  auto states() const { return std::tie(count); }
  View body() const {
    const auto binding = count.binding();
    return View(Text::verbatim(name + " " + std::to_string(count.get()))).onTapGesture([binding] {
      binding.set(binding.get() + 1);
    });
  }
};

/// Shows `shown` while its switch is on; counts its evaluations.
struct Switched {
  static constexpr std::string_view typeName = "Switched";
  View shown;
  std::shared_ptr<int> evaluations = std::make_shared<int>(0);
  swiftui::State<bool> on{true};
  auto states() const { return std::tie(on); }
  View body() const {
    ++*evaluations;
    const auto binding = on.binding();
    return swiftui::VStack(
        layout::HorizontalAlignment::center, 0,
        {View(Text::verbatim("switch")).onTapGesture([binding] { binding.toggle(); }),
         swiftui::Conditional(on.get(), on.get() ? shown : View())});
  }
};

View column(std::vector<View> views) {
  return swiftui::VStack(layout::HorizontalAlignment::center, 0, std::move(views));
}

TEST(ViewGraph, AStateLivesAtItsPlaceAndDiesWithItsBranch) {
  TestWindow window(column({Counter{"kept"}, Switched{Counter{"left"}}}));
  for (const char* label : {"kept 0", "left 0", "left 1"}) window.act(label);
  EXPECT_EQ(window.labels(), "kept 1, switch, left 2");
  window.act("switch");
  EXPECT_EQ(window.labels(), "kept 1, switch");
  window.act("switch");
  EXPECT_EQ(window.labels(), "kept 1, switch, left 0");
}

TEST(ViewGraph, EveryPlaceHasItsOwnState) {
  std::vector<View> many;
  for (int i = 0; i < 300; ++i) many.emplace_back(Counter{std::to_string(i)});
  TestWindow window(column(many).overlay({}, Counter{"inner"}).overlay({}, Counter{"outer"}));
  for (const char* label : {"44 0", "299 0", "inner 0", "outer 0", "outer 1"}) {
    ASSERT_TRUE(window.host->activate(
        static_cast<int>(&window.element(label) - window.shown().accessibility.data())));
    window.settle();
  }
  for (const char* label : {"43 0", "44 1", "255 0", "299 1", "inner 1", "outer 2"}) {
    EXPECT_NO_THROW(window.element(label)) << label;
  }
}

TEST(ViewGraph, AnotherTypeInAPlaceStartsAfresh) {
  TestWindow window(column({Counter{"a"}}));
  window.act("a 0");
  window.host->updateRoot(column({Counter{"b"}}));
  EXPECT_EQ(window.labels(), "b 1") << "the same type is the same view";
  window.host->updateRoot(column({Switched{Text::verbatim("on")}}));
  EXPECT_EQ(window.labels(), "switch, on");
  window.host->updateRoot(column({Counter{"c"}}));
  EXPECT_EQ(window.labels(), "c 0");
  window.tap("c 0");
  window.host->setRoot(column({Counter{"d"}}));
  EXPECT_EQ(window.labels(), "d 0") << "another root is another view";
}

TEST(ViewGraph, ChangesAreEvaluatedTogetherOnTheNextTurn) {
  const Watched watched("0");
  const Switched switched{watched};
  TestWindow window(switched);
  const int before = *switched.evaluations;
  const int displays = window.displays;
  window.tap("switch");
  window.tap("switch");
  watched.model->fee = "1";
  watched.model->fee = "2";
  EXPECT_EQ(*switched.evaluations, before);
  EXPECT_EQ(MainQueue::drain(), 2 + 1) << "both taps, and one evaluation";
  EXPECT_EQ(*switched.evaluations, before + 1);
  EXPECT_EQ(window.displays, displays + 2 + 1) << "likewise";
  EXPECT_NO_THROW(window.element("2"));
}

TEST(ViewGraph, ObjectsAreObservedOnlyOnScreen) {
  const Watched watched("0"), twin = watched;
  const Switched switched{column({watched, twin})};
  TestWindow window(switched);
  int changes = 0;
  const auto turnsAfterChange = [&] {
    watched.model->fee = std::to_string(++changes);
    return MainQueue::drain();
  };
  EXPECT_EQ(turnsAfterChange(), 1);
  window.host->setOnScreen(false);
  EXPECT_EQ(turnsAfterChange(), 0);
  window.host->setOnScreen(true);
  EXPECT_NO_THROW(window.element("2")) << "what changed while it was away shows";
  EXPECT_EQ(turnsAfterChange(), 1);
  window.act("switch");
  EXPECT_EQ(turnsAfterChange(), 0) << "its branch is gone";
}

TEST(ViewGraph, ATaskRunsAtEachAppearanceUnlessItsViewLeavesFirst) {
  std::string log;
  const auto task = [&log](char name) { return [&log, name] { log += name; }; };
  const auto priority = swiftui::TaskPriority::userInitiated;
  const View twoTasks =
      View(Text::verbatim("t")).task(priority, task('a')).task(priority, task('b'));
  TestWindow window(Switched{twoTasks});
  EXPECT_EQ(log, "") << "not before its turn";
  window.settle();
  EXPECT_EQ(log.size(), 2U) << log;
  window.tap("switch");
  window.act("switch");
  EXPECT_EQ(log.size(), 2U) << "re-evaluation is no appearance";
  window.act("switch");
  window.act("switch");
  EXPECT_EQ(log.size(), 4U);
  window.host->setOnScreen(false);
  window.host->setOnScreen(true);
  window.shown();
  window.host->setOnScreen(false);
  MainQueue::drain();
  EXPECT_EQ(log.size(), 4U) << "left before its turn";
  window.host->setOnScreen(true);
  window.settle();
  EXPECT_EQ(log.size(), 6U);
}

TEST(ViewGraph, AHostMayGoAtAnyTime) {
  const Watched watched("0");
  std::function<void()> kept;
  bool ran = false;
  {
    const auto priority = swiftui::TaskPriority::userInitiated;
    TestWindow window(Switched{View(watched).task(priority, [&ran] { ran = true; })});
    kept = window.shown().hitAreas.at(0).action;
    watched.model->fee = "1";  // a turn and a task are pending
  }
  kept();
  watched.model->fee = "2";
  MainQueue::drain();
  EXPECT_FALSE(ran);
}

TEST(ViewGraph, AnActionMayDestroyItsOwnHost) {
  std::optional<TestWindow> window;
  const auto close = [&window] { window.reset(); };
  const View view = View(Text::verbatim("close")).onTapGesture(close);
  window.emplace(view);
  window->tap("close");
  EXPECT_TRUE(window) << "the toolkit is still at work with it";
  MainQueue::drain();
  EXPECT_FALSE(window);
  window.emplace(view);
  window->host->activate(0);
  EXPECT_FALSE(window);
}

TEST(ViewGraph, EachMeasuredPlaceIsToldItsSizeOnceAndAgainWhenItReturns) {
  std::string log;
  const auto tell = [&log](const char* name) {
    return [&log, name](layout::Size size) {
      log += name + std::to_string(static_cast<int>(size.width)) + " ";
    };
  };
  const View measured = View(Text::verbatim("xx"))
                            .font(swiftui::Font::custom("F", swiftui::Font::FixedSize{16}))
                            .onGeometryChange(tell("text "))
                            .padding(10)
                            .onGeometryChange(tell("padded "));
  TestWindow window(Switched{measured});
  EXPECT_EQ(log, "text 16 padded 36 ");
  window.environment.scale = 2;
  window.host->setEnvironment(window.environment);
  window.settle();
  EXPECT_EQ(log, "text 16 padded 36 ") << "nothing changed";
  window.act("switch");
  window.act("switch");
  EXPECT_EQ(log, "text 16 padded 36 text 16 padded 36 ");
}

}  // namespace
}  // namespace quorix
