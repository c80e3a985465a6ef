#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace quorix::swiftui {

/// The storage behind a `State`: outlives the view values that read it.
template <class T>
struct StateBox {
  T value;
  std::function<void()> onChange;  ///< re-evaluates the owner
};

/// Reads and writes a value that somebody else stores. Cheap to copy; main thread.
template <class T>
class Binding {
 public:
  explicit Binding(std::shared_ptr<StateBox<T>> box) : box_(std::move(box)) {}

  const T& get() const { return box_->value; }

  /// Stores `value`; when it differs, the owner's body is evaluated again on a later turn.
  void set(T value) const {
    if (box_->value == value) return;
    box_->value = std::move(value);
    if (box_->onChange) box_->onChange();
  }

  void toggle() const { set(!get()); }

 private:
  std::shared_ptr<StateBox<T>> box_;
};

/// View-local storage with an identity that survives re-evaluation of the body. The view names its
/// states in `states()`, so that the graph can hand each its storage before it asks for the body:
///
///     struct Counter {
///       State<int> count{0};
///       auto states() const { return std::tie(count); }
///       View body() const;
///     };
template <class T>
class State {
 public:
  explicit State(T initial)
      : box_(std::make_shared<StateBox<T>>(StateBox<T>{std::move(initial), {}})) {}

  const T& get() const { return box_->value; }
  Binding<T> binding() const { return Binding<T>(box_); }

  const std::shared_ptr<StateBox<T>>& box() const { return box_; }
  /// For the graph: reads and writes `box` from now on.
  void adopt(std::shared_ptr<StateBox<T>> box) const { box_ = std::move(box); }

 private:
  mutable std::shared_ptr<StateBox<T>> box_;
};

}  // namespace quorix::swiftui
