#include "platform/combine/ObservableObject.h"

#include <algorithm>
#include <vector>

namespace quorix::combine {

struct ObservableObject::Observers {
  std::vector<std::weak_ptr<std::function<void()>>> list;
};

Cancellable ObservableObject::onWillChange(std::function<void()> observer) {
  if (!observers_) observers_ = std::make_shared<Observers>();
  auto& list = observers_->list;
  std::erase_if(list, [](const auto& entry) { return entry.expired(); });
  auto token = std::make_shared<std::function<void()>>(std::move(observer));
  list.push_back(token);
  return token;
}

void ObservableObject::sendWillChange() {
  if (!observers_) return;
  const auto entries = observers_->list;  // observers may subscribe or cancel while they run
  for (const auto& entry : entries) {
    if (const auto observer = entry.lock()) (*observer)();
  }
}

}  // namespace quorix::combine
