#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "QuorixWidgets/info/UIInfoWidgetViewModel.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"

namespace quorix {

/// The info widget for hosts of the imperative toolkit: the title over a read-more link, which
/// presents the web overlay over the app's top-most screen. Its content comes from the interface
/// file of its name; without it, or without one of its outlets, the process stops. Main thread.
class UIInfoWidget final : public uikit::UIView {
 public:
  /// The title label follows the model from the next turn of the main queue on.
  static std::shared_ptr<UIInfoWidget> make(std::shared_ptr<UIInfoWidgetViewModel> viewModel);

  // A widget cannot come from an interface file, and needs its model: these stop the process.

  [[noreturn]] static std::shared_ptr<UIInfoWidget> initWithCoder();
  [[noreturn]] static std::shared_ptr<UIInfoWidget> initWithFrame(layout::Rect frame);

  std::string_view className() const override { return classXibName; }

  /// The link was tapped.
  void tapFunction(uikit::UITapGestureRecognizer& sender);

 private:
  explicit UIInfoWidget(std::shared_ptr<UIInfoWidgetViewModel> viewModel);

  void commonInit();
  void setupView();
  void setupWithInfo();
  void followTitle();
  void styleLink();
  static std::shared_ptr<uikit::UIViewController> getCurrentViewController();

  static constexpr std::string_view classXibName = "UIInfoWidget";
  std::shared_ptr<UIInfoWidgetViewModel> viewModel_;
  std::vector<combine::Cancellable> cancellables_;
  std::shared_ptr<uikit::UIView> contentView_;
  std::weak_ptr<uikit::UILabel> titleLabel_;
  std::weak_ptr<uikit::UILabel> linkLabel_;
};

}  // namespace quorix
