#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/foundation/Export.h"

namespace quorix::combine {

/// Keeps a subscription alive; dropping it ends the subscription.
using Cancellable = std::shared_ptr<void>;

/// An object that tells its observers that it is about to change. Shared by reference; main thread.
class QUORIX_EXPORT ObservableObject {
 public:
  ObservableObject() = default;
  ObservableObject(const ObservableObject&) = delete;
  ObservableObject& operator=(const ObservableObject&) = delete;
  virtual ~ObservableObject() = default;

  /// Calls `observer` before each change for as long as the returned token lives. An observer may
  /// end its own or another subscription while it runs.
  [[nodiscard]] Cancellable onWillChange(std::function<void()> observer);

  /// Tells every observer. For published values.
  void sendWillChange();

 private:
  struct Observers;
  std::shared_ptr<Observers> observers_;
};

/// A value whose every assignment first tells the owner's observers and then stores.
template <class T>
class Published {
 public:
  Published(ObservableObject& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
  Published(const Published&) = delete;
  Published& operator=(const Published&) = delete;

  const T& get() const { return value_; }
  operator const T&() const { return value_; }

  Published& operator=(T value) {
    owner_.sendWillChange();
    value_ = std::move(value);
    return *this;
  }

 private:
  ObservableObject& owner_;
  T value_;
};

}  // namespace quorix::combine
