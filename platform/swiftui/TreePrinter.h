#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Wording.h"
#include "platform/swiftui/Font.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/Text.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The tree of `view` as text: one line for each element, with its children below it, indented by
/// two. Each modifier has its own line below its element, innermost first, indented by four, with a
/// dot.
///
/// ```text
/// Text("Fee")
///     .textCase(uppercase)
/// ```
///
/// Bodies are evaluated with the initial values of their states. The content of a sheet is printed
/// below the modifier that presents it.
QUORIX_EXPORT std::string printTree(const View& view);

/// Writes the lines of a printed tree.
class TreePrinter {
 public:
  void print(const View& view, int depth);
  /// Writes a line, indented by two for each level of `depth`.
  void line(int depth, std::string_view content);

  std::string text;
};

// The texts of values in a printed tree.

using render::inQuotes;
using render::number;
std::string_view nameOf(layout::HorizontalAlignment alignment);
std::string_view nameOf(layout::VerticalAlignment alignment);
std::string nameOf(layout::Alignment alignment);
std::string_view nameOf(bool value);
std::string describe(const Font& font);
std::string describe(const Text& text);
std::string describe(const PresentationDetents& detents);
std::string describe(const layout::EdgeInsets& insets);
std::string describe(layout::Edges edges);

}  // namespace quorix::swiftui
