#include "platform/swiftui/StateStore.h"

namespace quorix::swiftui {

StateSlots& StateStore::states(const TreePath& path) {
  const auto [found, isNew] = entries_.try_emplace(path);
  if (isNew) found->second.states.onChange = onChange_;
  found->second.visited = true;
  return found->second.states;
}

void StateStore::beginEvaluation() {
  for (auto& [path, entry] : entries_) entry.visited = false;
}

void StateStore::endEvaluation() {
  std::erase_if(entries_, [](const auto& entry) { return !entry.second.visited; });
}

}  // namespace quorix::swiftui
