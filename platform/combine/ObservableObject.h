#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/foundation/Export.h"

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

/// An object that notifies its observers before it changes. Shared by reference; main thread.
class QUORIX_EXPORT ObservableObject {
 public:
  ObservableObject() = default;
  ObservableObject(const ObservableObject&) = delete;
  ObservableObject& operator=(const ObservableObject&) = delete;
  virtual ~ObservableObject() = default;

  /// Calls `observer` before each change for as long as the returned token lives. An observer may
  /// end its own or another subscription while it runs.
  [[nodiscard]] Cancellable onWillChange(std::function<void()> observer) {
    return observers_.add(std::move(observer));
  }

  /// Notifies every observer. `Published` calls this.
  void sendWillChange() { observers_.call(); }

 private:
  Observers<> observers_;
};

/// A value. Each assignment notifies the owner's observers, passes the new value to the
/// subscribers, and then stores it.
template <class T>
class Published {
 public:
  Published(ObservableObject& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
  Published(const Published&) = delete;
  Published& operator=(const Published&) = delete;

  /// Calls `receive` with the current value and with each new one, for as long as the returned
  /// token lives. Every value arrives, in the order of assignment.
  [[nodiscard]] Cancellable sink(typename Observers<T>::Observer receive) {
    receive(value_);
    return subscribers_.add(std::move(receive));
  }

  const T& get() const { return value_; }
  operator const T&() const { return value_; }

  Published& operator=(T value) {
    owner_.sendWillChange();
    subscribers_.call(value);
    value_ = std::move(value);
    return *this;
  }

 private:
  ObservableObject& owner_;
  T value_;
  Observers<T> subscribers_;
};

}  // namespace quorix::combine
