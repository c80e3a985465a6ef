#pragma once

#include <QFont>

namespace quorix::qt {

/// A face at the size it is shaped at, and where its decorations go.
///
/// Qt rounds every font to whole pixels. Text is therefore shaped larger than it is drawn and the
/// painter scales it back: a size of 15.7 points keeps its fraction, and what was measured is the
/// same at every scale of the screen.
struct ShapingFont {
  /// What a face is shaped at, whatever its size. Qt keeps the metrics of glyphs that reach no more
  /// than 127 pixels from their origin and loads all others again for every text.
  static constexpr int pixels = 96;

  /// Pixels for each point in a text of several sizes, which share one scale.
  static constexpr int mixedUnits = 32;

  /// A decoration's centre above (negative) or below the baseline, and its thickness. Points.
  struct Stroke {
    double offset = 0;
    double thickness = 0;
  };

  QFont font;  ///< `pixels` high
  Stroke underline;
  Stroke strikethrough;
};

}  // namespace quorix::qt
