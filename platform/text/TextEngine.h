#pragma once

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/text/AttributedText.h"

namespace quorix::text {

/// Measures of a text broken to a width. Points.
struct TextMetrics {
  layout::Size size;  ///< of the inked lines: the width of the widest one, the height of all
  bool operator==(const TextMetrics&) const = default;
};

/// Shapes and breaks text: the port from layout to an engine's fonts. Main thread.
class QUORIX_EXPORT TextEngine {
 public:
  virtual ~TextEngine() = default;

  /// Breaks `text` into lines no wider than `width` (infinity: only at line ends in the text), at
  /// word boundaries, and inside a word only if the word alone is wider than `width`. An empty text
  /// has the height of one line and no width.
  virtual TextMetrics measure(const AttributedText& text, double width) = 0;

  /// The least width at which `text` breaks only at word boundaries: that of its longest word. A
  /// price is one word.
  virtual double leastWidth(const AttributedText& text) = 0;
};

}  // namespace quorix::text
