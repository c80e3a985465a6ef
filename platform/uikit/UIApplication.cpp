#include "platform/uikit/UIApplication.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/Runtime.h"
#include "platform/uikit/URLOpener.h"

namespace quorix::uikit {

UIApplication& UIApplication::shared() { return foundation::Runtime::the<UIApplication>(); }

void UIApplication::connect(std::shared_ptr<UIScene> scene) {
  if (!scene || std::find(scenes_.begin(), scenes_.end(), scene) != scenes_.end()) return;
  scenes_.push_back(std::move(scene));
}

void UIApplication::disconnect(const std::shared_ptr<UIScene>& scene) {
  std::erase(scenes_, scene);
}

void UIApplication::open(const foundation::URL& url, const OpenOptions&,
                         std::function<void(bool)> completion) {
  const bool handedOver = URLOpener::openOutside(url);
  if (!completion) return;
  foundation::MainQueue::async(
      [completion = std::move(completion), handedOver] { completion(handedOver); });
}

}  // namespace quorix::uikit
