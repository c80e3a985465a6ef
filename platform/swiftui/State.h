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

/// A place in a view tree: the steps from the root, through components by their type. The same
/// place in the next evaluation is the same view. Copies are on the heap.
using TreePath = std::pmr::u32string;

namespace steps {

constexpr char32_t chosen = 1;
constexpr char32_t notChosen = 2;
constexpr char32_t modified = 3;  ///< into a modifier that needs a place of its own
// Each of these goes on with its next ones.
constexpr char32_t firstChild = 1U << 8;
constexpr char32_t firstOverlay = 1U << 30;  ///< one for each element of a group
constexpr char32_t firstType = 1U << 31;

/// Into the body of a component, or to content of another toolkit by the type of its maker. Another
/// type in its place is another view, with states of its own. Main thread.
QUORIX_EXPORT char32_t into(std::type_index type);

}  // namespace steps

/// What is kept for one place in a tree: the storage of a component's states, in the order in which
/// it names them.
struct StateSlots {
  std::shared_ptr<Kept> first;
  const foundation::Action* onChange;
};

/// The states of a view tree's components, by place. What an evaluation does not visit any more has
/// left the tree and loses its states.
class StateStore {
 public:
  explicit StateStore(foundation::Action onChange) : onChange_(std::move(onChange)) {}
  StateStore(const StateStore&) = delete;
  StateStore& operator=(const StateStore&) = delete;

  /// Valid until the next call.
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
      0;  ///< after the latest that was asked for: an evaluation asks in the same order each time
  foundation::Action onChange_;
};

}  // namespace quorix::swiftui
