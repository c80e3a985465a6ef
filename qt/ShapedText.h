#pragma once

#include <QGlyphRun>
#include <cstddef>
#include <vector>

#include "platform/text/TextEngine.h"

namespace quorix::qt {

/// A text broken into lines, ready to draw. It holds no color: texts that differ only in color or
/// decoration share it.
struct ShapedText {
  /// Glyphs of one run, in pixels of the shaping font from the line's left end, on the baseline.
  struct Piece {
    QGlyphRun glyphs;
    std::size_t run = 0;
  };

  /// Where the glyphs of one run stand on the line without a gap. Points from the line's left end.
  struct Span {
    std::size_t run = 0;
    double left = 0;
    double right = 0;
  };

  struct Line {
    double baseline = 0;  ///< points from the text's top
    double advance = 0;   ///< points
    std::vector<Piece> pieces;
    std::vector<Span> spans;
  };

  text::TextMetrics metrics;
  double unit = 1;          ///< points for each pixel of the shaping font
  std::vector<Line> lines;  ///< empty when only the metrics were asked for
};

}  // namespace quorix::qt
