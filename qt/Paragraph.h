#pragma once

#include <QString>
#include <QTextLayout>
#include <vector>

#include "platform/text/AttributedText.h"
#include "qt/QtFonts.h"
#include "qt/ShapedText.h"

namespace quorix::qt {

/// Breaks one text after another into lines with one QTextLayout.
class Paragraph {
 public:
  /// Takes `text` in place of the one before.
  void set(const text::AttributedText& text, QtFonts& fonts);

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

  QTextLayout layout_;
  std::vector<Run> runs_;
  double unit_ = 1;  ///< points for each pixel of the shaping font
  double ascent_ = 0;
  double descent_ = 0;
  bool open_ = false;
};

}  // namespace quorix::qt
