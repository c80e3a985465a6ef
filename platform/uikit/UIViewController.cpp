#include "platform/uikit/UIViewController.h"

#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/uikit/UIWindow.h"

namespace quorix::uikit {

UIViewController::~UIViewController() {
  if (presented_) presented_->presenting_ = nullptr;
}

const std::shared_ptr<UIView>& UIViewController::view() {
  if (!view_) {
    view_ = std::make_shared<UIView>();
    viewDidLoad();
  }
  return view_;
}

void UIViewController::present(std::shared_ptr<UIViewController> controller, bool animated,
                               std::function<void()> completion) {
  const bool isFree = controller && controller.get() != &bottom() && !controller->presenting_ &&
                      !controller->window_;
  if (presented_ || !isFree) return;
  controller->presenting_ = this;
  presented_ = std::move(controller);
  presentedChanged(animated, std::move(completion));
}

void UIViewController::dismiss(bool animated, std::function<void()> completion) {
  if (!presented_) {
    if (presenting_) presenting_->dismiss(animated, std::move(completion));
    return;
  }
  const auto kept = weak_from_this().lock();
  const auto leaving = std::exchange(presented_, nullptr);
  leaving->presenting_ = nullptr;
  // Dismiss the controllers above it too. They may be presented again.
  for (auto above = leaving; above->presented_;) {
    above = std::exchange(above->presented_, nullptr);
    above->presenting_ = nullptr;
  }
  presentedChanged(animated, std::move(completion));
}

void UIViewController::presentedChanged(bool animated, std::function<void()> completion) {
  if (UIWindow* over = window()) over->controllersChanged(animated);
  if (completion) foundation::MainQueue::async(std::move(completion));
}

std::shared_ptr<UIViewController> UIViewController::presentingViewController() const {
  return presenting_ ? presenting_->weak_from_this().lock() : nullptr;
}

UIWindow* UIViewController::window() const { return bottom().window_; }

const UIViewController& UIViewController::bottom() const {
  const UIViewController* lowest = this;
  while (lowest->presenting_) lowest = lowest->presenting_;
  return *lowest;
}

}  // namespace quorix::uikit
