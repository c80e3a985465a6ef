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

/// Qt would end a line after the "1." of a text that begins with "1.234".
void keepFirstNumberWhole(QString& text);

/// Rounded up, so that the text breaks the same way when it is given back its own width. What is
/// `needed` is an upper bound: text of a `natural` width that fits never asks for more than it was
/// offered. Points.
double measuredWidth(double natural, double needed, double offered);

/// Breaks one text after another into lines with one QTextLayout.
class Paragraph {
 public:
  /// Takes `text` in place of the one before, unless it has the same shapes.
  void set(const text::AttributedText& text, QtFonts& fonts);

  /// Forgets the text: faces have changed.
  void clear() { text_.reset(); }

  /// The text broken to `width` points, with its glyphs where `glyphs` says so.
  ShapedText breakLines(double width, bool glyphs);

  /// The points that its longest word takes. Leaves the lines to be broken anew.
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
