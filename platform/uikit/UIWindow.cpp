#include "platform/uikit/UIWindow.h"

#include <utility>

#include "platform/uikit/UIApplication.h"

namespace quorix::uikit {

UIWindow::UIWindow() { setHidden(true); }

UIWindow::~UIWindow() {
  resignKey();
  if (root_) root_->window_ = nullptr;
}

void UIWindow::setRootViewController(std::shared_ptr<UIViewController> root) {
  if (root == root_) return;
  if (root_) root_->window_ = nullptr;
  if (root && root->window_) root->window_->setRootViewController(nullptr);
  root_ = std::move(root);
  if (root_) root_->window_ = this;
  controllersChanged(false);
}

std::vector<std::shared_ptr<UIViewController>> UIWindow::presentedControllers() const {
  std::vector<std::shared_ptr<UIViewController>> presented;
  for (auto above = root_ ? root_->presentedViewController() : nullptr; above;
       above = above->presentedViewController()) {
    presented.push_back(above);
  }
  return presented;
}

bool UIWindow::isKeyWindow() const { return UIApplication::shared().keyWindow_ == this; }

void UIWindow::makeKey() { UIApplication::shared().keyWindow_ = this; }

void UIWindow::resignKey() {
  if (isKeyWindow()) UIApplication::shared().keyWindow_ = nullptr;
}

void UIWindow::makeKeyAndVisible() {
  setHidden(false);
  makeKey();
}

void UIWindow::controllersChanged(bool animated) {
  if (client_) client_->presentedControllersChanged(*this, animated);
}

}  // namespace quorix::uikit
