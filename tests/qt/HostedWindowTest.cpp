#include "QuorixWidgets/info/UIInfoWidget.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIViewController.h"
#include "tests/qt/Screens.h"

namespace quorix::testing {
namespace {

/// Presents a page with that title over the top-most screen of the key window.
void presentPage(const std::string& title) {
  const auto window = UIApplication::getKeyWindow();
  ASSERT_TRUE(window);
  auto top = window->rootViewController();
  while (top->presentedViewController()) top = top->presentedViewController();
  const auto page = std::make_shared<uikit::UIViewController>();
  page->view()->setAccessibilityLabel(title);
  top->present(page, true);
}

swiftui::View opener(const std::string& page) {
  return swiftui::View(swiftui::Text::verbatim("Open " + page)).onTapGesture([page] {
    presentPage(page);
  });
}

SCREENS_TEST_SUITE(HostedWindow);

TYPED_TEST(HostedWindow, PresentsOverTheWindowInUseAndEndsWithIt) {
  const auto scenes = [] { return uikit::UIApplication::shared().connectedScenes().size(); };
  const std::size_t before = scenes();
  TypeParam one;
  TypeParam two;
  one.add(opener("first"), kPlace);
  auto* second = two.add(opener("second"), kPlace);
  one.click("Open first");
  EXPECT_TRUE(one.shows("first"));
  EXPECT_FALSE(two.shows("first"));
  two.focus(second);
  two.key(Qt::Key_Tab);
  two.click("Open second");
  EXPECT_TRUE(two.shows("second"));
  EXPECT_FALSE(one.shows("second"));
  EXPECT_EQ(scenes(), before + 2);
  two.closeWindow();
  EXPECT_EQ(scenes(), before + 1);
}

TYPED_TEST(HostedWindow, ShowsItsSheetAgainAfterTheWindowWasHidden) {
  TypeParam screen;
  if (auto* window = qobject_cast<QQuickWindow*>(&screen.window())) {
    window->setPersistentSceneGraph(false);  // a GPU's renderer frees the pictures
    window->setPersistentGraphics(false);
  }
  screen.add(opener("page"), kPlace);
  screen.click("Open page");
  const QImage before = screen.grab();
  screen.window().hide();
  screen.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&screen.window()));
  screen.settle();
  EXPECT_TRUE(screen.shows("page"));
  EXPECT_EQ(screen.grab(), before);
}

}  // namespace
}  // namespace quorix::testing
