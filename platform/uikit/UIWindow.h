#pragma once

#include <memory>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/uikit/UIView.h"
#include "platform/uikit/UIViewController.h"

namespace quorix::uikit {

/// A window of the app. A surface makes one for each window of its toolkit, with a root controller,
/// puts it into a scene, and shows what is presented over the root as sheets. Hidden until it is
/// told otherwise. Main thread.
class QUORIX_EXPORT UIWindow final : public UIView {
 public:
  using Level = double;
  static constexpr Level normalLevel = 0;
  static constexpr Level statusBarLevel = 1000;
  static constexpr Level alertLevel = 2000;

  /// Whoever shows the window.
  class Client {
   public:
    virtual ~Client() = default;
    /// `presentedControllers()` is another list: show it. May come while a controller is presented
    /// or dismissed by what the client itself does.
    virtual void presentedControllersChanged(UIWindow& window, bool animated) = 0;
  };

  UIWindow();
  ~UIWindow() override;
  std::string_view className() const override { return "UIWindow"; }

  /// Null for none; must outlive the window or be taken away.
  void setClient(Client* client) { client_ = client; }

  const std::shared_ptr<UIViewController>& rootViewController() const { return root_; }
  /// A root that another window has leaves that one.
  void setRootViewController(std::shared_ptr<UIViewController> root);
  /// What stands over the root, the lowest first.
  std::vector<std::shared_ptr<UIViewController>> presentedControllers() const;

  /// Whether the keyboard is this window's: of one in the process.
  bool isKeyWindow() const;
  void makeKey();
  /// When the window is no longer what keys go to, and no other one has taken over.
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
