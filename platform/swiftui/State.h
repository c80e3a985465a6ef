#pragma once

#include <memory>
#include <utility>

#include "platform/foundation/Action.h"

namespace quorix::swiftui {

/// Something that a graph keeps for a place in its tree, and what it keeps there besides.
struct Kept {
  virtual ~Kept() = default;
  std::shared_ptr<Kept> next;
};

/// The storage behind a `State`: outlives the view values that read it.
template <class T>
struct StateBox final : Kept {
  StateBox() = default;
  explicit StateBox(T initial, foundation::Action changed = {})
      : value(std::move(initial)), onChange(std::move(changed)) {}

  T value{};
  foundation::Action onChange;  ///< re-evaluates the owner
};

/// Reads and writes a value that is stored elsewhere. Cheap to copy; main thread.
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
///     #include <platform/swiftui/View.h>
///     struct Counter {
///       State<int> count{0};
///       auto states() const { return std::tie(count); }
///       View body() const;
///     };
template <class T>
class State {
 public:
  explicit State(T initial) : initial_(std::move(initial)) {}

  const T& get() const { return box_ ? box_->value : initial_; }
  Binding<T> binding() const {
    if (!box_) box_ = std::make_shared<StateBox<T>>(initial_);
    return Binding<T>(box_);
  }

  /// For the graph: reads and writes `box` from now on.
  void adopt(std::shared_ptr<StateBox<T>> box) const { box_ = std::move(box); }

 private:
  T initial_;
  mutable std::shared_ptr<StateBox<T>> box_;
};

}  // namespace quorix::swiftui
