#include "QuorixWidgets/overlay/WebViewController.h"

#include <gtest/gtest.h>

#include "platform/swiftui/UIViewControllerRepresentable.h"
#include "tests/core/OpenedAddresses.h"
#include "tests/core/ShownPage.h"
#include "tests/core/TestWindow.h"

using namespace quorix;
using quorix::testing::shownContent;
using quorix::testing::TestWindow;

TEST(WebViewController, ShowsItsPageAndCloseControl) {
  const auto overlay = std::make_shared<WebViewController>();
  overlay->locale = "nb";
  overlay->token = "";
  overlay->showCloseButton = true;
  TestWindow window(swiftui::hosting(overlay), {.direction = layout::LayoutDirection::rightToLeft,
                                                .language = {}});  // still on the right
  EXPECT_EQ(render::printFrames(window.shown()),
            "embed 0 0 320 640 #FFFFFFFF\n"
            "image 284 22 24 24 \"close\" #007AFFFF\n"
            "hit 272 10 48 48\n");
  const webkit::WebContent& page = shownContent(window.shown());
  EXPECT_EQ(page.url().value().absoluteString(),
            "https://widget.quorix.example/users/details/?lang=no");
  EXPECT_TRUE(page.settings.allowsContentJavaScript);
  EXPECT_TRUE(page.settings.javaScriptCanOpenWindowsAutomatically);
  EXPECT_TRUE(page.settings.allowsBackForwardNavigationGestures);

  // What changes after the view has loaded comes too late.
  overlay->token = std::nullopt;
  window.host->updateRoot(swiftui::hosting(overlay));
  EXPECT_EQ(shownContent(window.shown()).url()->path(), "/users/details/");

  const auto root = std::make_shared<uikit::UIViewController>();
  root->present(overlay, true);
  window.tap(layout::Point{272, 10});  // the control's very corner
  EXPECT_EQ(root->presentedViewController(), nullptr);
}

TEST(WebViewController, NewWindowsLeaveTheApp) {
  const quorix::testing::OpenedAddresses opened;
  auto overlay = std::make_shared<WebViewController>();
  const auto web =
      std::dynamic_pointer_cast<webkit::WKWebView>(overlay->view()->subviews().front());
  const auto page = web->content();
  page->onNewWindow(foundation::URL::parse("https://shop.example/terms"));
  page->onNewWindow(foundation::URL::parse("file:///etc/passwd"));
  page->onNewWindow(std::nullopt);
  EXPECT_EQ(opened.list(), std::vector<std::string>{"https://shop.example/terms"});

  // The page may outlive its controller in an engine, and asks nobody then.
  const std::weak_ptr<WebViewController> watched = overlay;
  overlay.reset();
  EXPECT_TRUE(watched.expired()) << "the web view keeps nobody";
  page->onNewWindow(foundation::URL::parse("https://shop.example/late"));
  EXPECT_EQ(opened.list().size(), 1u);
}
