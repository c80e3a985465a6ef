#pragma once

#include <QGlyphRun>
#include <QString>
#include <QTextLayout>
#include <vector>

#include "platform/text/AttributedText.h"
#include "platform/text/ShapedText.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {

/// Glyphs in pixels of the shaping font.
using ShapedText = text::ShapedText<QGlyphRun>;

/// Whether `text` begins like "1.234". Qt would end a line after the "1.".
bool splitsFirstNumber(const QString& text);

/// The width to report for a text: `needed`, rounded up so that the text breaks the same way when
/// it is offered that width. `needed` is an upper bound, so a text whose `natural` width fits
/// reports no more than `offered`. Points.
double measuredWidth(double natural, double needed, double offered);

/// A text that Qt shapes and breaks into lines.
class Paragraph {
 public:
  Paragraph(const text::AttributedText& text, QtFonts& fonts);

  /// Breaks the text to `width` points.
  ShapedText breakLines(double width);

  /// The width of the longest word, in points.
  double leastWidth();

 private:
  struct Run {
    int start = 0;
    int length = 0;
  };

  double longestUnspacedWord();
  double widthNeeded(const QTextLine& line) const;
  ShapedText::Line collect(const QTextLine& line) const;

  QTextLayout layout_;
  std::vector<Run> runs_;
  double unit_ = 1;  ///< points for each pixel of the shaping font
};

}  // namespace quorix::qt
