#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"

namespace quorix {

/// Additions to the running app. Main thread.
namespace UIApplication {

/// The window that the user works in. In the first scene in the foreground: its key window, else
/// its first visible window at the normal level, else its first window. With no scene in the
/// foreground: the first key window of any scene. Null if there is none.
std::shared_ptr<uikit::UIWindow> getKeyWindow();

}  // namespace UIApplication

/// The info widget of the imperative toolkit: the title over a read-more link, which presents the
/// web overlay over the app's top-most screen. Loads its content from the interface file of the
/// same name. Stops the process if the file or one of its outlets is missing. Main thread.
class UIInfoWidget final : public uikit::UIView {
 public:
  /// The title label shows the model's title after the next turn of the main queue.
  static std::shared_ptr<UIInfoWidget> make(std::shared_ptr<UIInfoWidgetViewModel> viewModel);

  // These stop the process, because a widget needs its model.
  [[noreturn]] static std::shared_ptr<UIInfoWidget> initWithCoder();
  [[noreturn]] static std::shared_ptr<UIInfoWidget> initWithFrame(layout::Rect frame);

  std::string_view className() const override { return classXibName; }

  /// Called when the link was tapped.
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
  combine::Cancellable title_;  ///< subscription to the model's title
  std::shared_ptr<uikit::UIView> contentView_;
  std::weak_ptr<uikit::UILabel> titleLabel_;
  std::weak_ptr<uikit::UILabel> linkLabel_;
};

}  // namespace quorix
