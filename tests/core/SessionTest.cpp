#include "platform/uikit/UIApplication.h"
#include "tests/core/TestWindow.h"
#include "tests/qt/FeeRow.h"

namespace quorix {
namespace {

using hosting::Key;
using testing::TestWindow;
using Phase = hosting::PointerEvent::Phase;

TEST(Session, ASheetClosesByEachOfItsWays) {
  TestWindow window(testing::FeeRow("4 €"));
  constexpr layout::Point beside{160, 20};
  const auto drag = [&](double milliseconds) {
    window.front().handle({Phase::pressed, {160, 500}, 0, 3});
    window.front().handle({Phase::moved, {160, 540}, milliseconds, 3});
    window.front().handle({Phase::released, {160, 540}, milliseconds, 3});
  };
  const struct {
    const char* by;
    std::function<void()> perform;
    std::string reason = {};  ///< none: stays open
  } rows[] = {
      {"a screen reader on it", [&] { window.front().activate(1); }, "button"},
      {"the Back key", [&] { window.key(Key::back), window.tap(beside); }, "key"},
      {"Enter on the first element", [&] { window.key(Key::next), window.key(Key::activate); },
       "button"},
      {"a swipe", [&] { drag(20); }, "swipe"},
      {"the host, after a tap that closes nothing",
       [&] { window.act("Terms"), window.view().replaceView(testing::FeeRow("4 €")); }, "host"},
      {"a slow one", [&] { drag(500); }},
      {"a second finger",
       [&] {
         window.front().handle({Phase::pressed, {160, 500}, 0, 3});
         window.front().handle({Phase::pressed, beside, 5, 4});
         window.front().handle({Phase::released, beside, 9, 4});
         window.front().pointerLost();
         window.front().handle({Phase::released, beside, 9, 3});
       }},
      {"a screen reader on a text", [&] { window.front().activate(0); }},
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

TEST(Session, ASecondQuickTapLeavesWhatTheFirstOpened) {
  TestWindow window(testing::FeeRow("4 €"));
  constexpr layout::Point beside{160, 20};
  window.tap("Row 4 €");
  foundation::MainQueue::drain();
  window.tap(beside);
  foundation::MainQueue::drain();
  EXPECT_TRUE(window.sheet());
  window.settle();  // passes the time of a double tap
  window.tap(beside);
  window.settle();
  EXPECT_FALSE(window.sheet());
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
  window.host->setRoot(swiftui::View());
  window.settle();
  EXPECT_TRUE(window.sheets().empty()) << "the lower one takes the upper one along";
  EXPECT_EQ(window.told, "activated opened closed:host ") << "of the lower one alone";
}

TEST(Session, AWindowPresentsControllersOverItself) {
  TestWindow window(testing::FeeRow("4 €"));
  const auto scene = std::static_pointer_cast<uikit::UIWindowScene>(
      uikit::UIApplication::shared().connectedScenes().front());
  const auto root = scene->windows().front()->rootViewController();
  const auto page = [](const char* name) {
    auto made = std::make_shared<uikit::UIViewController>();
    made->view()->setAccessibilityLabel(name);
    return made;
  };
  const auto escape = [&] { window.key(Key::escape), window.settle(); };
  window.act("Row 4 €");  // the pages get its settings
  escape();
  window.told.clear();
  const auto lower = page("lower");
  root->present(lower, true);
  lower->present(page("upper"), true);
  window.settle();
  EXPECT_EQ(window.sheets().size(), 2U);
  EXPECT_EQ(window.labels(), "upper");
  window.environment.appearance = graphics::Appearance::dark;
  window.setMotion(false);
  EXPECT_EQ(window.sheet()->scene().appearance, graphics::Appearance::dark);
  escape();
  EXPECT_EQ(lower->presentedViewController(), nullptr) << "the user closed it";
  root->dismiss(true);
  window.settle();
  root->present(lower, true);
  window.settle();
  root->dismiss(true);
  root->present(lower, true);  // leaves it open
  window.settle();
  escape();
  EXPECT_FALSE(window.sheet());
  EXPECT_EQ(window.told, "opened closed:host opened closed:key ");
}

/// A surface with a row that counts its evaluations.
struct Surface final : testing::TestText, hosting::ViewSession {
  struct Row {
    static constexpr std::string_view typeName = "Row";
    int* evaluations;
    bool acts;
    swiftui::View body() const {
      ++*evaluations;
      const swiftui::View row = swiftui::Text::verbatim("Row");
      return acts ? row.onTapGesture([] {}) : row;
    }
  };

  Surface() : ViewSession(text) { show(true); }
  void show(bool acts) {
    host().setRoot(Row{&evaluations, acts});
    refreshScene();
    foundation::MainQueue::drain();
  }
  using ViewSession::refreshScene;
  using ViewSession::rest;

  swiftui::Environment environment() const override { return {}; }
  bool allowsMotion() const override { return false; }
  layout::Size size() const override { return {100, 20}; }
  bool hasFocus() const override { return focused; }
  bool acceptsFocus() const override { return accepts; }
  void setAcceptsFocus(bool now) override { accepts = now; }
  void takeFocusByPress() override {
    focused = true;
    if (onFocus) onFocus();
  }
  void giveFocusOn() override { focused = isAlone; }
  void needsFrame() override {}
  void contentChanged() override {}
  void focusMoved(bool) override {}
  bool isRead() const override { return read; }
  hosting::WindowSession* window() override { return nullptr; }

  int evaluations = 0;
  bool focused = false, accepts = false, read = false;
  bool isAlone = false;  ///< nothing else takes the focus
  std::function<void()> onFocus;
};

TEST(ViewSession, FreesItsSceneUnlessItIsSeenFocusedOrRead) {
  for (const int needed : {0, 1, 2, 3}) {
    Surface surface;
    surface.focused = needed == 2;
    surface.read = needed == 3;
    EXPECT_EQ(surface.rest(needed == 1), needed == 0);
    EXPECT_FALSE(surface.refreshScene()) << "at rest, not stale";
    surface.elements();
    EXPECT_EQ(surface.evaluations, needed == 0 ? 2 : 1) << needed;
  }
}

constexpr hosting::PointerEvent press{hosting::PointerEvent::Phase::pressed, {50, 10}};

TEST(ViewSession, MayBeDeletedWhenItTakesTheFocus) {
  auto surface = std::make_unique<Surface>();
  surface->onFocus = [&] { auto gone = std::move(surface); };
  surface->handle(press);
  EXPECT_EQ(surface, nullptr);
}

TEST(ViewSession, IsInTheTabOrderWhileItActsOrKeepsTheFocus) {
  Surface surface;
  EXPECT_TRUE(surface.accepts);
  surface.setAcceptsFocus(false);  // as a host may
  surface.handle(press);
  EXPECT_FALSE(surface.focused);
  surface.show(false);
  EXPECT_FALSE(surface.accepts);
  for (const bool alone : {true, false}) {
    surface.isAlone = alone;
    surface.show(true);
    surface.handle(press);
    ASSERT_TRUE(surface.focused);
    surface.show(false);
    EXPECT_EQ(surface.focused, alone);
    EXPECT_EQ(surface.accepts, alone);
  }
}

}  // namespace
}  // namespace quorix
