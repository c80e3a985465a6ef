#pragma once

#include <memory>
#include <optional>

#include "platform/uikit/UIViewContent.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::uikit {

/// Shows a controller's view, which fills all that is offered. The view is loaded when its scene is
/// first asked for. Main thread.
class UIViewControllerContent final : public render::HostedContent {
 public:
  explicit UIViewControllerContent(std::shared_ptr<UIViewController> controller);

  const std::shared_ptr<UIViewController>& controller() const { return controller_; }
  /// Shows another controller.
  void show(std::shared_ptr<UIViewController> controller);

  layout::Size sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                            double scale) override;
  render::Scene scene(layout::Size size, const render::Display& display,
                      text::TextEngine& engine) override;

 private:
  std::shared_ptr<UIViewController> controller_;
  std::optional<UIViewContent> content_;  // once the view is loaded
};

}  // namespace quorix::uikit
