#include "platform/swiftui/State.h"

#include <algorithm>

namespace quorix::swiftui {
namespace {

constexpr std::size_t kUsual = 2;  // a widget and the modifier that presents its sheet

}  // namespace

StateSlots& StateStore::states(const TreePath& path) {
  const auto isIt = [&](const Entry& entry) { return std::u32string_view(entry.path) == path; };
  const auto next = entries_.begin() + static_cast<std::ptrdiff_t>(next_);
  auto found = std::find_if(next, entries_.end(), isIt);
  if (found == entries_.end()) {
    found = std::find_if(entries_.begin(), next, isIt);
    if (found == next) {
      if (entries_.empty()) entries_.reserve(kUsual);
      entries_.push_back({std::u32string(path), {{}, &onChange_}});
      found = entries_.end() - 1;
    }
  }
  next_ = static_cast<std::size_t>(found - entries_.begin()) + 1;
  found->visited = true;
  return found->states;
}

void StateStore::beginEvaluation() {
  next_ = 0;
  for (Entry& entry : entries_) entry.visited = false;
}

void StateStore::endEvaluation() {
  std::erase_if(entries_, [](const Entry& entry) { return !entry.visited; });
}

}  // namespace quorix::swiftui
