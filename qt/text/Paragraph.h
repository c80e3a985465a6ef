#pragma once

#include <QGlyphRun>
#include <QString>
#include <QTextLayout>
#include <cstddef>
#include <vector>

#include "platform/text/AttributedText.h"
#include "platform/text/TextEngine.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {

/// A text broken into lines, ready to draw. It holds no color: texts that differ only in color or
/// decoration share it.
struct ShapedText {
  /// Glyphs of one run, in pixels of the shaping font from the line's left end, on the baseline.
  struct Piece {
    QGlyphRun glyphs;
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
  };

  text::TextMetrics metrics;
  double unit = 1;  ///< points for each pixel of the shaping font
  std::vector<Line> lines;
};

/// Inserts a word joiner into a text that begins like "1.234": Qt would end a line after the "1.".
void keepFirstNumberWhole(QString& text);

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
