#pragma once

#include <functional>
#include <memory>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

class UIWindow;

/// One screen of an app: it has a view, made when somebody first asks for it, and may present
/// another controller over itself, as a sheet of the page's size. Made with std::make_shared; holds
/// what it presents. Main thread.
///
///     struct Page : UIViewController {
///       void viewDidLoad() override { view()->addSubview(label); }
///     };
///     top->present(std::make_shared<Page>(), true);
class QUORIX_EXPORT UIViewController : public std::enable_shared_from_this<UIViewController> {
 public:
  UIViewController() = default;
  virtual ~UIViewController();
  UIViewController(const UIViewController&) = delete;
  UIViewController& operator=(const UIViewController&) = delete;

  /// The first call makes the view and then calls `viewDidLoad`. Never null.
  const std::shared_ptr<UIView>& view();
  bool isViewLoaded() const { return view_ != nullptr; }
  /// Runs once, with the view made and still empty.
  virtual void viewDidLoad() {}

  /// Shows `controller` over this one; `completion` runs on a later turn of the main queue. Nothing
  /// happens when this one presents another already, or when `controller` is presented somewhere,
  /// is a window's root or is this one.
  void present(std::shared_ptr<UIViewController> controller, bool animated,
               std::function<void()> completion = {});
  /// Takes away what this controller presents, with all that stands on it; a controller that
  /// presents nothing hands this on to the one that presents it. `completion` runs on a later turn
  /// of the main queue, when something was there to dismiss.
  void dismiss(bool animated, std::function<void()> completion = {});

  const std::shared_ptr<UIViewController>& presentedViewController() const { return presented_; }
  std::shared_ptr<UIViewController> presentingViewController() const;
  /// The window over which this controller stands, by way of those that present it; null for none.
  UIWindow* window() const;

 private:
  friend class UIWindow;
  void presentedChanged(bool animated, std::function<void()> completion);

  std::shared_ptr<UIView> view_;
  std::shared_ptr<UIViewController> presented_;
  UIViewController* presenting_ = nullptr;  // cleared by it
  UIWindow* window_ = nullptr;              // of the root; cleared by the window
};

}  // namespace quorix::uikit
