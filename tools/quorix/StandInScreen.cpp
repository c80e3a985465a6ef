#include "tools/quorix/StandInScreen.h"

#include "platform/uikit/UIApplication.h"

namespace quorix::tool {
namespace {

bool tapFirst(const uikit::UIView& view) {
  if (!view.gestureRecognizers().empty()) {
    view.gestureRecognizers().front()->recognize();
    return true;
  }
  for (const auto& subview : view.subviews()) {
    if (tapFirst(*subview)) return true;
  }
  return false;
}

}  // namespace

StandInScreen::StandInScreen() {
  window_->setRootViewController(std::make_shared<uikit::UIViewController>());
  window_->makeKeyAndVisible();
  scene_->addWindow(window_);
  scene_->setActivationState(uikit::UIScene::ActivationState::foregroundActive);
  uikit::UIApplication::shared().connect(scene_);
}

StandInScreen::~StandInScreen() { uikit::UIApplication::shared().disconnect(scene_); }

std::shared_ptr<uikit::UIViewController> StandInScreen::presentedByTap(
    const uikit::UIView& root) const {
  tapFirst(root);
  return window_->rootViewController()->presentedViewController();
}

}  // namespace quorix::tool
