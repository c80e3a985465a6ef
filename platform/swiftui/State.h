#pragma once

#include <memory>
#include <memory_resource>
#include <string>
#include <typeindex>
#include <utility>
#include <vector>

#include "platform/foundation/Action.h"
#include "platform/foundation/Export.h"

namespace quorix::swiftui {

/// A value that a graph keeps for a place in its tree. The values of one place form a list.
struct Kept {
  virtual ~Kept() = default;
  std::shared_ptr<Kept> next;
};

/// The storage behind a `State`: outlives the view values that read it.
template <class T>
struct StateBox final : Kept {
  explicit StateBox(T initial, foundation::Action changed = {})
      : value(std::move(initial)), onChange(std::move(changed)) {}

  T value;
  foundation::Action onChange;  ///< re-evaluates the owner
};

/// Reads and writes a value that is stored elsewhere. Cheap to copy; main thread.
template <class T>
class Binding {
 public:
  explicit Binding(std::shared_ptr<StateBox<T>> box) : box_(std::move(box)) {}

  const T& get() const { return box_->value; }
  /// Stores `value`. If it differs, the owner's body is evaluated again on a later turn.
  void set(T value) const {
    if (box_->value == value) return;
    box_->value = std::move(value);
    if (box_->onChange) box_->onChange();
  }
  void toggle() const { set(!get()); }

 private:
  std::shared_ptr<StateBox<T>> box_;
};

/// View-local storage that survives re-evaluation of the body. The view lists its states in
/// `states()`, so that the graph can bind each to its storage before it calls the body:
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

  /// For the graph: binds this state to `box`.
  void adopt(std::shared_ptr<StateBox<T>> box) const { box_ = std::move(box); }

 private:
  T initial_;
  mutable std::shared_ptr<StateBox<T>> box_;
};

/// A place in a view tree: the steps from the root. The step into a component depends on its type.
/// The same place in the next evaluation is the same view. Copies are on the heap.
using TreePath = std::pmr::u32string;

namespace steps {

constexpr char32_t chosen = 1;
constexpr char32_t notChosen = 2;
constexpr char32_t modified = 3;  ///< into a modifier that needs its own place
// The next steps of each kind count up from its first.
constexpr char32_t firstChild = 1U << 8;
constexpr char32_t firstOverlay = 1U << 30;  ///< one for each element of a group
constexpr char32_t firstType = 1U << 31;

/// The step into the body of a component, or into hosted content by the type of its maker. Another
/// type in the same place is another view, with its own states. Main thread.
QUORIX_EXPORT char32_t into(std::type_index type);

}  // namespace steps

/// The storage of one component's states, in the order of its `states()`.
struct StateSlots {
  std::shared_ptr<Kept> first;
  const foundation::Action* onChange;
};

/// The states of a view tree's components, by place. A place that an evaluation does not visit has
/// left the tree and loses its states.
class StateStore {
 public:
  explicit StateStore(foundation::Action onChange) : onChange_(std::move(onChange)) {}
  StateStore(const StateStore&) = delete;
  StateStore& operator=(const StateStore&) = delete;

  /// The states of the place `path`. Valid until the next call.
  StateSlots& states(const TreePath& path);
  void clear() { entries_.clear(); }

  void beginEvaluation();
  void endEvaluation();

 private:
  struct Entry {
    std::u32string path;
    StateSlots states;
    bool visited = true;
  };
  std::vector<Entry> entries_;
  std::size_t next_ =
      0;  ///< index after the latest lookup, because evaluations look up in the same order
  foundation::Action onChange_;
};

}  // namespace quorix::swiftui
