#include "platform/uikit/UIViewControllerContent.h"

#include <utility>

namespace quorix::uikit {

UIViewControllerContent::UIViewControllerContent(std::shared_ptr<UIViewController> controller)
    : controller_(std::move(controller)) {}

void UIViewControllerContent::show(std::shared_ptr<UIViewController> controller) {
  if (controller == controller_) return;
  controller_ = std::move(controller);
  content_.reset();
  tellChanged();
}

layout::Size UIViewControllerContent::sizeThatFits(layout::ProposedSize proposal, text::TextEngine&,
                                                   double) {
  return {proposal.width.value_or(0), proposal.height.value_or(0)};
}

render::Scene UIViewControllerContent::scene(layout::Size size, const render::Display& display,
                                             text::TextEngine& engine) {
  if (!controller_) return {};
  if (!content_) {
    content_.emplace(controller_->view());
    content_->onChange([this] { tellChanged(); });
  }
  return content_->scene(size, display, engine);
}

}  // namespace quorix::uikit
