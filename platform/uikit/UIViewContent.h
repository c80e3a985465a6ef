#pragma once

#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/render/HostedContent.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

class UIViewController;

/// Makes the display list of a view and its subviews. Only the content made last for a view
/// receives its change notices. Main thread.
class QUORIX_EXPORT UIViewContent : public render::HostedContent {
 public:
  explicit UIViewContent(std::shared_ptr<UIView> view);
  ~UIViewContent() override;
  UIViewContent(const UIViewContent&) = delete;
  UIViewContent& operator=(const UIViewContent&) = delete;

  const std::shared_ptr<UIView>& view() const { return view_; }
  /// Shows another view.
  void show(std::shared_ptr<UIView> view);
  /// The size or the appearance of the view or a subview may have changed.
  void viewChanged() const { tellChanged(); }

  /// The size by constraints and content, within the proposal. A length that they leave open is the
  /// proposed one.
  layout::Size sizeThatFits(layout::ProposedSize proposal, text::TextEngine& engine,
                            double scale) override;
  render::Scene scene(layout::Size size, const render::Display& display,
                      text::TextEngine& engine) override;

 private:
  std::shared_ptr<UIView> view_;
};

/// Makes the display list of a controller's view, which fills the offered size. Loads the view at
/// the first call of `scene`. Main thread.
class QUORIX_EXPORT UIViewControllerContent final : public render::HostedContent {
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
