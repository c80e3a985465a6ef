#include "platform/hosting/ViewSession.h"

#include "tests/core/TestWindow.h"

namespace quorix {
namespace {

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
