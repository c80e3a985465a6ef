#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "platform/foundation/Action.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/TreePath.h"

namespace quorix::swiftui {

/// What is kept for one place in a tree: the storage of a component's states, in the order in which
/// it names them.
struct StateSlots {
  std::shared_ptr<Kept> first;
  foundation::Action onChange;
};

/// The states of a view tree's components, by place. What an evaluation does not visit any more has
/// left the tree and loses its states.
class StateStore {
 public:
  explicit StateStore(foundation::Action onChange) : onChange_(std::move(onChange)) {}

  /// Valid until the next call.
  StateSlots& states(const TreePath& path);
  void clear() { entries_.clear(); }

  void beginEvaluation();
  void endEvaluation();

 private:
  struct Entry {
    TreePath path;
    StateSlots states;
    bool visited = true;
  };
  std::vector<Entry> entries_;
  std::size_t next_ =
      0;  ///< after the latest that was asked for: an evaluation asks in the same order each time
  foundation::Action onChange_;
};

}  // namespace quorix::swiftui
