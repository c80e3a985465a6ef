#pragma once

#include <QFont>

namespace quorix::qt {

/// A face at the size it is shaped at, and where its decorations go.
///
/// Qt rounds every font to whole pixels. Text is therefore shaped `unitsPerPoint` times larger than
/// it is drawn and the painter scales it back: a size of 15.7 points keeps its fraction, and what
/// was measured is the same at every scale of the screen.
struct ShapingFont {
  static constexpr int unitsPerPoint = 32;

  /// A decoration's centre above (negative) or below the baseline, and its thickness. Points.
  struct Stroke {
    double offset = 0;
    double thickness = 0;
  };

  QFont font;
  Stroke underline;
  Stroke strikethrough;
};

}  // namespace quorix::qt
