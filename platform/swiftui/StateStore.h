#pragma once

#include <functional>
#include <map>

#include "platform/swiftui/Component.h"
#include "platform/swiftui/TreePath.h"

namespace quorix::swiftui {

/// The states of a view tree's components, by place. What an evaluation does not visit any more has
/// left the tree and loses its states.
class StateStore {
 public:
  explicit StateStore(std::function<void()> onChange) : onChange_(std::move(onChange)) {}

  StateSlots& states(const TreePath& path);
  void clear() { entries_.clear(); }
  void beginEvaluation();
  void endEvaluation();

 private:
  struct Entry {
    StateSlots states;
    bool visited = false;
  };
  std::map<TreePath, Entry> entries_;
  std::function<void()> onChange_;
};

}  // namespace quorix::swiftui
