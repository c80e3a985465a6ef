#include "platform/uikit/UIApplication.h"
#include "tests/core/TestWindow.h"
#include "tests/qt/FeeRow.h"

namespace quorix {
namespace {

using hosting::Key;
using hosting::PointerEvent;
using swiftui::Text;
using swiftui::View;
using testing::TestWindow;
using Phase = PointerEvent::Phase;

TEST(Session, ASheetClosesByEachOfItsWays) {
  TestWindow window(testing::FeeRow("4 €"));
  constexpr layout::Point beside{160, 20};
  const auto drag = [&](int pointer, double to, double milliseconds) {
    window.front().handle({Phase::pressed, {160, 500}, 0, pointer});
    window.front().handle({Phase::moved, {160, to}, milliseconds, pointer});
    window.front().handle({Phase::released, {160, to}, milliseconds, pointer});
  };
  const struct {
    const char* by;
    std::function<void()> perform;
    std::string reason = {};  ///< none: it stays open
  } rows[] = {
      {"its button", [&] { window.tap("Close 4 €"); }, "button"},
      {"a screen reader on it", [&] { window.front().activate(1); }, "button"},
      {"Escape", [&] { window.key(Key::escape); }, "key"},
      {"the Back key", [&] { window.key(Key::back), window.tap(beside); }, "key"},
      {"Enter on the first element", [&] { window.key(Key::next), window.key(Key::activate); },
       "button"},
      {"a tap beside", [&] { window.tap(beside); }, "outside"},
      {"a swipe", [&] { drag(3, 540, 20); }, "swipe"},
      {"the same with the mouse", [&] { drag(PointerEvent::mouse, 540, 20); }, "swipe"},
      {"the host, after a tap that closes nothing",
       [&] { window.act("Terms"), window.view().replaceView(testing::FeeRow("4 €")); }, "host"},
      {"a slow one", [&] { drag(3, 540, 500); }},
      {"a second finger",
       [&] {
         window.front().handle({Phase::pressed, {160, 500}, 0, 3});
         window.front().handle({Phase::pressed, beside, 5, 4});
         window.front().handle({Phase::released, beside, 9, 4});
         window.front().pointerLost();
         window.front().handle({Phase::released, beside, 9, 3});
       }},
      {"another key", [&] { EXPECT_FALSE(window.key(Key::pageBack)); }},
  };
  for (const auto& way : rows) {
    window.told.clear();
    window.act("Row 4 €");
    ASSERT_TRUE(window.sheet()) << way.by;
    EXPECT_EQ(&window.front(), window.topmost());
    EXPECT_EQ(window.told, "activated opened ") << way.by;
    window.told.clear();
    const auto sheet = window.topmost()->weak();
    way.perform();
    window.settle();
    EXPECT_EQ(sheet.expired(), !way.reason.empty()) << way.by;
    EXPECT_EQ(window.sheet() == nullptr, !way.reason.empty()) << way.by;
    EXPECT_EQ(window.told, way.reason.empty() ? "" : "closed:" + way.reason + " ") << way.by;
    window.key(Key::escape);
    window.settle();
  }
}

TEST(Session, SheetsStandOnEachOtherAndCloseFromTheTop) {
  TestWindow window(testing::Opener{testing::FeeRow("above")});
  window.act("More");
  window.act("Row above");
  ASSERT_EQ(window.sheets().size(), 2U);
  EXPECT_EQ(window.labels(), "Fee above, Close above, Terms");
  window.key(Key::escape);
  window.settle();
  EXPECT_EQ(window.labels(), "Row above");
  window.act("Row above");
  window.host->setRoot(View());
  window.settle();
  EXPECT_TRUE(window.sheets().empty()) << "the lower one takes the upper one along";
  EXPECT_EQ(window.told, "activated opened closed:host ") << "of the lower one alone";
}

TEST(Session, AWindowPresentsControllersOverItself) {
  TestWindow one(testing::FeeRow("1 €")), two(testing::FeeRow("2 €"));
  const auto active = [] {
    std::string states;
    for (const auto& scene : uikit::UIApplication::shared().connectedScenes()) {
      const bool is = scene->activationState() == uikit::UIScene::ActivationState::foregroundActive;
      states += is ? 'a' : '-';
    }
    return states;
  };
  for (TestWindow* window : {&one, &two}) {
    window->tap(window == &one ? "Row 1 €" : "Row 2 €");
    EXPECT_EQ(active(), window == &one ? "a-" : "-a");
  }
  const auto scene = std::static_pointer_cast<uikit::UIWindowScene>(
      uikit::UIApplication::shared().connectedScenes().front());
  const auto root = scene->windows().front()->rootViewController();
  const auto page = [](const char* name) {
    auto made = std::make_shared<uikit::UIViewController>();
    made->view()->setAccessibilityLabel(name);
    return made;
  };
  one.settle();
  one.key(Key::escape);
  one.settle();
  const auto lower = page("lower");
  one.told.clear();
  root->present(lower, true);
  lower->present(page("upper"), true);
  one.settle();
  EXPECT_EQ(one.sheets().size(), 2U);
  EXPECT_EQ(one.labels(), "upper");
  one.environment.appearance = graphics::Appearance::dark;
  one.setMotion(false);
  EXPECT_EQ(one.sheet()->scene().appearance, graphics::Appearance::dark);
  one.key(Key::escape);
  one.settle();
  EXPECT_EQ(lower->presentedViewController(), nullptr) << "the user closed it";
  root->dismiss(true);
  one.settle();
  root->present(lower, true);
  one.settle();
  root->dismiss(true);
  root->present(lower, true);  // at once, which leaves it up
  one.settle();
  one.key(Key::escape);
  one.settle();
  EXPECT_FALSE(one.sheet());
  EXPECT_EQ(one.told, "opened closed:host opened closed:key ");
}

}  // namespace
}  // namespace quorix
