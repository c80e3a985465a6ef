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

// How a printed tree words the values in it.

using render::inQuotes;
using render::number;
std::string_view nameOf(layout::HorizontalAlignment alignment);
std::string_view nameOf(layout::VerticalAlignment alignment);
std::string nameOf(layout::Alignment alignment);
std::string_view nameOf(FontWeight weight);
std::string_view nameOf(bool value);
std::string describe(const Font& font);
std::string describe(const Text& text);
std::string describe(const PresentationDetents& detents);
std::string describe(const layout::EdgeInsets& insets);
std::string describe(layout::Edges edges);

}  // namespace quorix::swiftui
