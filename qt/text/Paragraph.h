#pragma once

#include <QGlyphRun>
#include <QString>
#include <QTextLayout>
#include <cstddef>
#include <optional>
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
  double unit = 1;          ///< points for each pixel of the shaping font
  std::vector<Line> lines;  ///< empty when only the metrics were asked for
};

/// Inserts a word joiner into a text that begins like "1.234": Qt would end a line after the "1.".
void keepFirstNumberWhole(QString& text);

/// The width to report for a text: `needed`, rounded up so that the text breaks the same way when
/// it is offered that width. `needed` is an upper bound, so a text whose `natural` width fits
/// reports no more than `offered`. Points.
double measuredWidth(double natural, double needed, double offered);

/// Breaks one text after another into lines with one QTextLayout.
class Paragraph {
 public:
  /// Takes `text` in place of the one before, unless it has the same shapes.
  void set(const text::AttributedText& text, QtFonts& fonts);

  /// Forgets the text: faces have changed.
  void clear() { text_.reset(); }

  /// Breaks the text to `width` points. Collects the lines only if `glyphs` is true.
  ShapedText breakLines(double width, bool glyphs);

  /// The width of the longest word, in points. The next `breakLines` shapes the text again.
  double leastWidth();

 private:
  struct Run {
    int start = 0;
    int length = 0;
  };

  void setText(const QString& text, const text::AttributedText& attributed, QtFonts& fonts);
  bool canBreakAgain() const;
  void openSession();
  double longestUnspacedWord();
  double widthNeeded(const QTextLine& line) const;
  ShapedText::Line collect(const QTextLine& line) const;

  std::optional<text::AttributedText> text_;
  QTextLayout layout_;
  std::vector<Run> runs_;
  double unit_ = 1;  ///< points for each pixel of the shaping font
  double ascent_ = 0;
  double descent_ = 0;
  bool open_ = false;
};

}  // namespace quorix::qt
