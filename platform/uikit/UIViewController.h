#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Export.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

class UIWindow;

/// One screen of an app. Makes its view at the first call of `view`. May present another controller
/// over itself, as a sheet of the page's size, and owns it. Make it with std::make_shared. Main
/// thread.
///
///     struct Page : UIViewController {
///       void viewDidLoad() override { view()->addSubview(std::make_shared<UIView>()); }
///     };
///     void show(UIViewController& top) {
///       top.present(std::make_shared<Page>(), true);
///     }
class QUORIX_EXPORT UIViewController : public std::enable_shared_from_this<UIViewController> {
 public:
  UIViewController() = default;
  /// Stores the name of an interface file and its bundle for subclasses. Does not load the file;
  /// use `Nib`. The view is still made empty.
  explicit UIViewController(std::optional<std::string> nibName,
                            foundation::Bundle::Ref nibBundle = nullptr)
      : nibName_(std::move(nibName)), nibBundle_(std::move(nibBundle)) {}
  virtual ~UIViewController();
  UIViewController(const UIViewController&) = delete;
  UIViewController& operator=(const UIViewController&) = delete;

  const std::optional<std::string>& nibName() const { return nibName_; }
  /// Null: the host's main bundle.
  const foundation::Bundle::Ref& nibBundle() const { return nibBundle_; }

  /// Makes the view on the first call, then calls `viewDidLoad`. Never null.
  const std::shared_ptr<UIView>& view();
  /// Called once, when the view has been made and is still empty.
  virtual void viewDidLoad() {}

  /// Shows `controller` over this one. Calls `completion` on a later turn of the main queue. No
  /// effect if this one already presents a controller, or if `controller` is already presented, is
  /// a window's root, is this one, or presents this one, directly or not.
  void present(std::shared_ptr<UIViewController> controller, bool animated,
               std::function<void()> completion = {});
  /// Dismisses the controller that this one presents, and all above it. If this one presents none,
  /// calls `dismiss` of the controller that presents it. Calls `completion` on a later turn of the
  /// main queue if a controller was dismissed.
  void dismiss(bool animated, std::function<void()> completion = {});

  const std::shared_ptr<UIViewController>& presentedViewController() const { return presented_; }
  std::shared_ptr<UIViewController> presentingViewController() const;
  /// The window whose root presents this controller, directly or not; null for none.
  UIWindow* window() const;

 private:
  friend class UIWindow;
  void presentedChanged(bool animated, std::function<void()> completion);
  /// The lowest of the controllers that present this one; itself if it is not presented.
  const UIViewController& bottom() const;

  std::optional<std::string> nibName_;
  foundation::Bundle::Ref nibBundle_;
  std::shared_ptr<UIView> view_;
  std::shared_ptr<UIViewController> presented_;
  UIViewController* presenting_ = nullptr;  // cleared by it
  UIWindow* window_ = nullptr;              // of the root; cleared by the window
};

}  // namespace quorix::uikit
