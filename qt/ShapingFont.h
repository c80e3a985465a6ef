#pragma once

#include <QFont>

namespace quorix::qt {

/// A face as texts are shaped in it, and where its decorations go.
///
/// Qt rounds every font to whole pixels, at which a size of 15.7 points would lose its fraction.
/// All sizes of text are therefore shaped in one pixel size, and scaled when they are drawn:
/// without hinting a face has the same shape at every size. So measures are exact and do not depend
/// on the screen, and all sizes of a face share one font.
struct ShapingFont {
  /// Small enough for Qt to cache advances (it does up to some 120 pixels), large enough for its
  /// 1/64 of a pixel not to add up.
  static constexpr int pixels = 64;

  /// A decoration's centre above (negative) or below the baseline, and its thickness. Ems.
  struct Stroke {
    double offset = 0;
    double thickness = 0;
  };

  QFont font;
  double ascent = 0;   ///< of the face itself, without fallbacks; pixels
  double descent = 0;  ///< likewise
  Stroke underline;
  Stroke strikethrough;
};

}  // namespace quorix::qt
