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

 private:
  struct Run {
    int start = 0;
    int length = 0;
  };

  void setText(const QString& text, const text::AttributedText& attributed, QtFonts& fonts);
  void openSession();
  ShapedText::Line collect(const QTextLine& line) const;

  QTextLayout layout_;
  double units_ = 1;  ///< for each point
  std::vector<Run> runs_;
  bool open_ = false;
};

}  // namespace quorix::qt
