#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::foundation {
class Runtime;
}  // namespace quorix::foundation

namespace quorix::uikit {

class UIWindow;

/// One running instance of the app's interface. Main thread.
class QUORIX_EXPORT UIScene {
 public:
  enum class ActivationState : std::uint8_t {
    unattached,
    foregroundActive,
    foregroundInactive,
    background
  };

  UIScene() = default;
  virtual ~UIScene() = default;
  UIScene(const UIScene&) = delete;
  UIScene& operator=(const UIScene&) = delete;

  ActivationState activationState() const { return state_; }
  /// For surfaces: the state that the system reports.
  void setActivationState(ActivationState state) { state_ = state; }

 private:
  ActivationState state_ = ActivationState::unattached;
};

/// A scene with windows, in the order in which they were added. Main thread.
class QUORIX_EXPORT UIWindowScene final : public UIScene {
 public:
  const std::vector<std::shared_ptr<UIWindow>>& windows() const { return windows_; }
  void addWindow(std::shared_ptr<UIWindow> window) { windows_.push_back(std::move(window)); }

 private:
  std::vector<std::shared_ptr<UIWindow>> windows_;
};

class URLOpener;

/// The running app: its scenes, and the opening of addresses outside the app. Main thread.
class QUORIX_EXPORT UIApplication {
 public:
  using OpenOptions = std::map<std::string, std::string>;

  static UIApplication& shared();

  /// In the order in which they were connected.
  const std::vector<std::shared_ptr<UIScene>>& connectedScenes() const { return scenes_; }
  /// For surfaces: adds a scene, or removes one.
  void connect(std::shared_ptr<UIScene> scene);
  void disconnect(const std::shared_ptr<UIScene>& scene);

  /// Passes `url` to `URLOpener::openOutside`, which refuses unsafe addresses. Calls `completion`
  /// with the result on a later turn of the main queue.
  void open(const foundation::URL& url, const OpenOptions& options,
            std::function<void(bool)> completion = {});

 private:
  friend class foundation::Runtime;
  friend class URLOpener;
  friend class UIWindow;
  UIApplication() = default;

  std::vector<std::shared_ptr<UIScene>> scenes_;
  UIWindow* keyWindow_ = nullptr;
  std::shared_ptr<URLOpener> opener_;
};

}  // namespace quorix::uikit
