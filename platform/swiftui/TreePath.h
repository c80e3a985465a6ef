#pragma once

#include <memory_resource>
#include <string>
#include <typeindex>

#include "platform/foundation/Export.h"

namespace quorix::swiftui {

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
}  // namespace quorix::swiftui
