#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/text/TextEngine.h"

namespace quorix::text {

/// An underline or strikethrough: its center above (negative) or below the baseline, and its
/// thickness. Ems.
struct Stroke {
  double offset = 0;
  double thickness = 0;

  /// The stroke under or through a text from `left` to `right` on a line at `baseline`. On whole
  /// pixels, at least one high. `em` is the font's size; all are device pixels.
  layout::Rect rect(double left, double right, double baseline, double em) const {
    const layout::PixelGrid grid(1);
    const double height = std::max(1.0, std::round(thickness * em));
    const double top = grid.round(baseline + offset * em - height / 2);
    return {{grid.round(left), top}, {grid.round(right) - grid.round(left), height}};
  }
};

/// The width to report for a text: `needed`, rounded up so that it breaks into the same lines at
/// that width. `needed` may be too large, so the result is at most `offered` if `natural`, the
/// width on one line, fits. Points.
inline double measuredWidth(double natural, double needed, double offered) {
  const double width = std::ceil(needed * 64) / 64;
  return natural <= offered ? std::min(width, offered) : width;
}

/// A text broken into lines, ready to draw with an engine's own `Glyphs`. It holds no color: texts
/// that differ only in color or decoration share it.
template <class Glyphs>
struct ShapedText {
  /// Glyphs of one run, in the engine's unit from the line's left end, on the baseline.
  struct Piece {
    Glyphs glyphs;
    std::size_t run = 0;
  };

  /// A stretch of one run's glyphs without a gap. Points from the line's left end.
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

    /// Adds `glyphs` of `run`, which reach from `left` to `right`. Joins them to a span of the run
    /// that they touch, so that a decoration is one stroke.
    void add(Glyphs glyphs, std::size_t run, double left, double right) {
      constexpr double touching = 1.0 / 16;
      pieces.push_back({std::move(glyphs), run});
      const auto touched = std::ranges::find_if(spans, [&](const Span& span) {
        return span.run == run && left <= span.right + touching && right >= span.left - touching;
      });
      if (touched == spans.end()) return spans.push_back({run, left, right});
      touched->left = std::min(touched->left, left);
      touched->right = std::max(touched->right, right);
    }
  };

  TextMetrics metrics;
  double unit = 1;  ///< points for each of the engine's units
  std::vector<Line> lines;
};

}  // namespace quorix::text
