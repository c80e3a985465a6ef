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

/// One screen of an app. Makes its view at the first call of `view`, and may present another
/// controller over itself, as a sheet of the page's size, which it owns. Make it with
/// std::make_shared. Main thread.
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
  /// Stores the name of an interface file and its bundle for subclasses. The view is made empty all
  /// the same; load the file with `Nib`.
  explicit UIViewController(std::optional<std::string> nibName,
                            foundation::Bundle::Ref nibBundle = nullptr)
      : nibName_(std::move(nibName)), nibBundle_(std::move(nibBundle)) {}
  virtual ~UIViewController();
  UIViewController(const UIViewController&) = delete;
  UIViewController& operator=(const UIViewController&) = delete;

  const std::optional<std::string>& nibName() const { return nibName_; }
  /// Null: the host's main bundle.
  const foundation::Bundle::Ref& nibBundle() const { return nibBundle_; }

  /// The first call makes the view and then calls `viewDidLoad`. Never null.
  const std::shared_ptr<UIView>& view();
  /// Runs once, when the view has been made and is still empty.
  virtual void viewDidLoad() {}

  /// Shows `controller` over this one; `completion` runs on a later turn of the main queue. No
  /// effect when this one already presents another, or when `controller` is already presented, is a
  /// window's root or is this one.
  void present(std::shared_ptr<UIViewController> controller, bool animated,
               std::function<void()> completion = {});
  /// Dismisses the controller that this one presents, and all above it. A controller that presents
  /// none passes the call on to the one that presents it. `completion` runs on a later turn of the
  /// main queue if a controller was dismissed.
  void dismiss(bool animated, std::function<void()> completion = {});

  const std::shared_ptr<UIViewController>& presentedViewController() const { return presented_; }
  std::shared_ptr<UIViewController> presentingViewController() const;
  /// The window whose root presents this controller, directly or not; null for none.
  UIWindow* window() const;

 private:
  friend class UIWindow;
  void presentedChanged(bool animated, std::function<void()> completion);

  std::optional<std::string> nibName_;
  foundation::Bundle::Ref nibBundle_;
  std::shared_ptr<UIView> view_;
  std::shared_ptr<UIViewController> presented_;
  UIViewController* presenting_ = nullptr;  // cleared by it
  UIWindow* window_ = nullptr;              // of the root; cleared by the window
};

}  // namespace quorix::uikit
