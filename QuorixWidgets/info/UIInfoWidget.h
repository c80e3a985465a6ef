#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/info/InfoWidgetViewModel.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"
#include "platform/uikit/UIWindow.h"

namespace quorix {

/// The library's additions to the running app. Main thread.
namespace UIApplication {

/// The window that the user works in. In the first scene in the foreground: its key window, else
/// its first visible window at the normal level, else its first window. With no scene in the
/// foreground: the first key window of any scene. Null if there is none.
std::shared_ptr<uikit::UIWindow> getKeyWindow();

}  // namespace UIApplication

/// The info widget of the imperative toolkit: the title over a read-more link, which presents the
/// web overlay over the app's top-most screen. Its content is loaded from the interface file of its
/// name. If the file or one of its outlets is missing, the process stops. Main thread.
class UIInfoWidget final : public uikit::UIView {
 public:
  /// The title label shows the model's title from the next turn of the main queue on.
  static std::shared_ptr<UIInfoWidget> make(std::shared_ptr<UIInfoWidgetViewModel> viewModel);

  // A widget cannot be made without its model: these stop the process.
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
  combine::Cancellable title_;  ///< the subscription to the model's
  std::shared_ptr<uikit::UIView> contentView_;
  std::weak_ptr<uikit::UILabel> titleLabel_;
  std::weak_ptr<uikit::UILabel> linkLabel_;
};

}  // namespace quorix
