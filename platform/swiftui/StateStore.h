#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/swiftui/Component.h"

namespace quorix::swiftui {

/// A place in a view tree: the steps from the root, through components by their type. The same
/// place in the next evaluation is the same view.
using TreePath = std::u32string;

/// The states of a view tree's components, by place. What an evaluation does not visit any more has
/// left the tree and loses its states.
class StateStore {
 public:
  explicit StateStore(std::function<void()> onChange) : onChange_(std::move(onChange)) {}

  StateSlots& states(const TreePath& path);
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
