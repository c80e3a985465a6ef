#pragma once

#include <string>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The tree of `view` as text: an element a line, its children indented by two, and each of its
/// modifiers on a line of its own below them, innermost first, indented by four behind a dot.
///
///     Text("Fee")
///         .textCase(uppercase)
///
/// Bodies are evaluated with their states' initial values. What a sheet shows stands below the
/// modifier that presents it.
QUORIX_EXPORT std::string printTree(const View& view);

}  // namespace quorix::swiftui
