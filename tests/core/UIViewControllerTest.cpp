#include "platform/uikit/UIViewController.h"

#include <gtest/gtest.h>

#include "platform/foundation/MainQueue.h"
#include "platform/hosting/WindowSession.h"
#include "platform/uikit/UIWindow.h"

using namespace quorix::uikit;
using quorix::foundation::MainQueue;

namespace {

struct Surface final : UIWindow::Client {
  int changes = 0;
  void presentedControllersChanged(UIWindow&, bool) override { ++changes; }
};

std::shared_ptr<UIViewController> screen() { return std::make_shared<UIViewController>(); }

using Chain = std::vector<std::shared_ptr<UIViewController>>;

}  // namespace

TEST(UIViewController, PresentsAChainAndTellsItsWindow) {
  const auto root = screen(), first = screen(), second = screen(), other = screen();
  Surface surface;
  {
    UIWindow window;
    window.setClient(&surface);
    window.setRootViewController(root);
    surface.changes = 0;

    int completed = 0;
    first->present(second, true);
    root->present(first, true, [&] { ++completed; });
    EXPECT_EQ(window.presentedControllers(), (Chain{first, second}));
    EXPECT_EQ(second->window(), &window);
    EXPECT_EQ(second->presentingViewController(), first);
    EXPECT_EQ(completed, 0) << "not before the caller is done";
    MainQueue::drain();
    EXPECT_EQ(completed, 1);

    root->present(other, true);   // presents already
    other->present(first, true);  // is presented already
    other->present(root, true);   // is a root
    other->present(other, true);
    EXPECT_EQ(other->presentedViewController(), nullptr);
    EXPECT_EQ(surface.changes, 1);

    second->dismiss(true, [&] { ++completed; });  // hands it on to its presenter
    EXPECT_EQ(window.presentedControllers(), (Chain{first}));
    first->present(second, false);
    root->dismiss(true);  // and all that stands on it
    EXPECT_EQ(window.presentedControllers(), Chain{});
    EXPECT_EQ(first->presentedViewController(), nullptr);
    root->dismiss(true, [&] { ++completed; });  // nothing to dismiss
    MainQueue::drain();
    EXPECT_EQ(completed, 2);
    EXPECT_EQ(surface.changes, 4);
    root->present(first, true);
  }
  EXPECT_EQ(first->window(), nullptr) << "the window is gone, the screens are not";
}

TEST(UIViewController, ASheetThatClosesDismissesIt) {
  const auto root = screen(), page = screen();
  root->present(page, true);
  const auto sheet = quorix::hosting::controllerPresentation(page);
  EXPECT_TRUE(sheet.isPresented.get());
  sheet.isPresented.set(false);
  EXPECT_EQ(root->presentedViewController(), nullptr);
  sheet.isPresented.set(true);  // presenting it again takes a controller
  EXPECT_EQ(root->presentedViewController(), nullptr);
}
