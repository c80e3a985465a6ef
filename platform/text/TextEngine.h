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

  /// Breaks `text` into lines no wider than `width` (infinity: only at line ends in the text).
  /// Breaks at word boundaries, and inside a word only if the word is wider than `width`. An empty
  /// text has the height of one line and the width 0.
  virtual TextMetrics measure(const AttributedText& text, double width) = 0;

  /// The smallest width at which `text` breaks only at word boundaries: the width of its longest
  /// word. A price counts as one word.
  virtual double leastWidth(const AttributedText& text) = 0;
};

}  // namespace quorix::text
