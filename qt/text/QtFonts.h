#pragma once

#include <QFont>
#include <QObject>
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/foundation/Cache.h"
#include "platform/text/AttributedText.h"
#include "platform/text/ShapedText.h"

namespace quorix::qt {

/// A face at the size that texts are shaped in, and the places of its decorations.
///
/// Qt rounds the size of a font to whole pixels: 15.7 points would lose the fraction. Texts of all
/// sizes are therefore shaped in one size, and scaled when they are drawn: without hinting a face
/// has the same shape at every size. So measures are exact and do not depend on the screen, and all
/// sizes of a face share one font.
struct ShapingFont {
  /// Small enough for Qt to cache advances (it does up to some 120 pixels), and so large that
  /// errors of 1/64 pixel, its precision, do not add up.
  static constexpr int pixels = 64;

  /// Points for each of these pixels in a text of `points`. Never 0: lengths are divided by it.
  static double unit(double points) { return std::max(points, 1.0 / 64) / pixels; }

  QFont font;
  text::Stroke underline;
  text::Stroke strikethrough;
  bool hasWordJoiner = true;  ///< itself; a fallback face's may be higher
};

/// An invisible character at which no line ends.
inline constexpr QChar wordJoiner(0x2060);

/// Finds Qt's fonts for the names that texts carry: a face of the font manager, a family, a
/// PostScript name such as "OpenSans-SemiBold", and the system's font for any other. Main thread.
class QtFonts {
 public:
  static QtFonts& shared();

  QtFonts();

  /// Lets the font manager look up the faces that Qt has on its own. May be called again.
  static void installSystemLookup();

  /// Whether Qt has a face of that family or PostScript name. Any thread; false without a
  /// `QGuiApplication`.
  static bool systemKnows(std::string_view name);

  /// The face of `font` in `pixels`.
  ShapingFont find(text::ResolvedFont font, int pixels = ShapingFont::pixels);

  /// Whether faces were added or removed since the last call. Forgets the fonts found before, if
  /// so.
  bool refresh();

 private:
  /// By name, weight and pixels. Bounded, since names come from hosts.
  foundation::Cache<text::ResolvedFont, ShapingFont> fonts_{128};
  std::size_t generation_ = 0;
  bool databaseChanged_ = false;
  QObject follower_;  ///< of the font database
};

}  // namespace quorix::qt
