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

  template <class Use>
  void eachLine(double width, Use use);
  double widthNeeded(const QTextLine& line) const;
  ShapedText::Line collect(const QTextLine& line) const;

  QTextLayout layout_;
  std::vector<Run> runs_;
  double unit_ = 1;  ///< points for each pixel of the shaping font
};

}  // namespace quorix::qt
