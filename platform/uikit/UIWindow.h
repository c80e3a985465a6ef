#pragma once

#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::uikit {

/// A window of the app. A surface makes one for each window of its toolkit, with a root controller,
/// adds it to a scene, and shows the controllers presented over the root as sheets. Hidden by
/// default. Main thread.
class QUORIX_EXPORT UIWindow final : public UIView {
 public:
  using Level = double;
  static constexpr Level normalLevel = 0;

  /// A surface that shows the window's controllers.
  class Client {
   public:
    virtual ~Client() = default;
    /// `presentedControllers()` changed: show them. May be called during a call of the client that
    /// presents or dismisses a controller.
    virtual void presentedControllersChanged(UIWindow& window, bool animated) = 0;
  };

  UIWindow();
  ~UIWindow() override;
  std::string_view className() const override { return "UIWindow"; }

  /// Null for none. Must outlive the window or be reset.
  void setClient(Client* client) { client_ = client; }

  const std::shared_ptr<UIViewController>& rootViewController() const { return root_; }
  /// Removes the root from another window that has it.
  void setRootViewController(std::shared_ptr<UIViewController> root);
  /// The controllers over the root, the lowest first.
  std::vector<std::shared_ptr<UIViewController>> presentedControllers() const;

  /// Whether this is the process's one window with the keyboard focus.
  bool isKeyWindow() const;
  void makeKey();
  /// Call when the window lost the keyboard focus and no other window got it.
  void resignKey();
  void makeKeyAndVisible();

  Level windowLevel() const { return level_; }
  void setWindowLevel(Level level) { level_ = level; }

 private:
  friend class UIViewController;
  void controllersChanged(bool animated);

  Client* client_ = nullptr;
  std::shared_ptr<UIViewController> root_;
  Level level_ = normalLevel;
};

}  // namespace quorix::uikit
