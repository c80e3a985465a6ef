#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The tree of `view` as text: an element a line, its children indented by two, and each of its
/// modifiers on a line of its own below them, innermost first, indented by four behind a dot.
///
/// ```text
/// Text("Fee")
///     .textCase(uppercase)
/// ```
///
/// Bodies are evaluated with their states' initial values. What a sheet shows stands below the
/// modifier that presents it.
QUORIX_EXPORT std::string printTree(const View& view);

/// Where nodes print themselves.
class TreePrinter {
 public:
  void print(const View& view, int depth);
  /// A line that is indented by two for each of `depth`.
  void line(int depth, std::string_view content);

  std::string text;
};

}  // namespace quorix::swiftui
