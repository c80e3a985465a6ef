#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quorix::combine {

/// Keeps a subscription alive; destroying it ends the subscription.
using Cancellable = std::shared_ptr<void>;

/// Functions that are called with each new value for as long as their subscriptions live. Main
/// thread.
template <class... Values>
class Observers {
 public:
  using Observer = std::function<void(const Values&...)>;

  [[nodiscard]] Cancellable add(Observer observer) {
    std::erase_if(list_, [](const auto& entry) { return entry.expired(); });
    auto subscription = std::make_shared<Observer>(std::move(observer));
    list_.push_back(subscription);
    return subscription;
  }

  /// An observer may end its own or another subscription, or add one, while it runs.
  void call(const Values&... values) const {
    const auto entries = list_;
    for (const auto& entry : entries) {
      if (const auto observer = entry.lock()) (*observer)(values...);
    }
  }

 private:
  std::vector<std::weak_ptr<Observer>> list_;
};

}  // namespace quorix::combine
