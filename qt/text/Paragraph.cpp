#include "qt/text/Paragraph.h"

#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "platform/text/TextAnalysis.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

/// `utf8` with U+2028 for each end of a line: Qt ends lines at no other character.
QString lineSeparated(const std::string& utf8) {
  QString text = QString::fromStdString(utf8);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  for (const QChar end : {QChar::LineFeed, QChar::CarriageReturn, QChar::ParagraphSeparator}) {
    text.replace(end, QChar::LineSeparator);
  }
  return text;
}

QTextOption option(layout::LayoutDirection direction) {
  QTextOption option;
  option.setUseDesignMetrics(true);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTextDirection(direction == layout::LayoutDirection::rightToLeft ? Qt::RightToLeft
                                                                            : Qt::LeftToRight);
  // Lines are placed by the painter, which knows the frame.
  option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
  return option;
}

/// An upper bound of how far the last glyph's ink reaches beyond the line, in pixels. Qt needs that
/// room when it breaks a line, but does not always include it in the line's width.
double overhang(const QTextLine& line, const QString& text) {
  int last = line.textStart() + line.textLength() - 1;
  while (last > line.textStart() && text[last].isSpace()) --last;
  double reach = 0;
  const QList<QGlyphRun> runs = line.glyphRuns(last, 1);
  for (const QGlyphRun& run : runs) {
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> advances = font.advancesForGlyphIndexes(glyphs);
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
      const double ink = font.boundingRect(glyphs[i]).right();
      reach = std::max(reach, std::ceil(ink - std::floor(advances[i].x())));
    }
  }
  return reach;
}

}  // namespace

bool splitsFirstNumber(const QString& text) {
  return text.size() > 2 && text[0].isDigit() && text[1].isPunct() && text[2].isDigit();
}

/// The first run's size sets the scale, at which Qt rounds other sizes to whole pixels.
Paragraph::Paragraph(const text::AttributedText& text, QtFonts& fonts) {
  QString characters;
  for (const text::Run& run : text.runs) {
    QString part = lineSeparated(run.text);
    if (characters.isEmpty() && splitsFirstNumber(part)) part.insert(2, wordJoiner);
    runs_.push_back({static_cast<int>(characters.size()), static_cast<int>(part.size())});
    characters += part;
  }
  const text::ResolvedFont first =
      text.runs.empty() ? text::ResolvedFont{} : text.runs.front().font;
  unit_ = ShapingFont::unit(first.points);
  layout_.setText(characters);
  const ShapingFont& face = fonts.find(first);
  layout_.setFont(face.font);
  layout_.setTextOption(option(text::baseDirection(text)));
  QList<QTextLayout::FormatRange> formats;
  const auto use = [&](const text::ResolvedFont& font, long pixels, const Run& part) {
    QTextCharFormat format;
    format.setFont(fonts.find(font, static_cast<int>(std::max(1L, pixels))).font);
    formats.push_back({part.start, part.length, format});
  };
  for (std::size_t i = 0; i < runs_.size(); ++i) {
    const text::ResolvedFont& font = text.runs[i].font;
    if (font != first && runs_[i].length > 0) use(font, std::lround(font.points / unit_), runs_[i]);
  }
  const auto joiner = static_cast<int>(face.hasWordJoiner ? -1 : characters.indexOf(wordJoiner));
  // A fallback face draws the joiner: at one pixel, so that it does not make the line higher.
  if (joiner >= 0 && joiner < runs_.front().length) use(first, 1, {joiner, 1});
  if (!formats.isEmpty()) layout_.setFormats(formats);
}

double Paragraph::widthNeeded(const QTextLine& line) const {
  const double natural = line.naturalTextWidth();
  const bool tooWide = natural > line.width();
  const bool whole = layout_.lineCount() == 1 && line.textLength() == layout_.text().size();
  if (whole || tooWide) return natural;
  return std::max(natural, line.horizontalAdvance() + overhang(line, layout_.text()));
}

/// Calls `use` with each line, broken to `width` points.
template <class Use>
void Paragraph::eachLine(double width, Use use) {
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(width / unit_);
    use(line);
  }
  layout_.endLayout();
}

ShapedText Paragraph::breakLines(double width) {
  ShapedText shaped;
  shaped.unit = unit_;
  double top = 0;
  double natural = 0;
  double needed = 0;
  eachLine(std::max(width, 0.0), [&](QTextLine& line) {
    line.setPosition({0, -line.ascent()});
    const double baseline = top + line.ascent() * unit_;
    natural = std::max(natural, line.naturalTextWidth() * unit_);
    needed = std::max(needed, widthNeeded(line) * unit_);
    top += (line.ascent() + line.descent() + std::max(line.leading(), 0.0)) * unit_;
    if (width <= 0) return;  // only measured: a line for each letter
    shaped.lines.push_back(collect(line));
    shaped.lines.back().baseline = baseline;
  });
  shaped.metrics.size = {text::measuredWidth(natural, needed, width), top};
  return shaped;
}

double Paragraph::leastWidth() {
  double least = 0;
  const auto words = text::unspacedWords(utf16(layout_.text()));
  if (!words.empty()) {
    eachLine(layout::infinity, [&](const QTextLine& line) {
      for (const text::WordRange& word : words) {
        const double end = line.cursorToX(word.start + word.length);
        least = std::max(least, std::abs(end - line.cursorToX(word.start)) * unit_);
      }
    });
  }
  QTextOption wordByWord = layout_.textOption();
  wordByWord.setWrapMode(QTextOption::WordWrap);
  layout_.setTextOption(wordByWord);
  eachLine(0, [&](const QTextLine& line) {
    const double needed = line.horizontalAdvance() + overhang(line, layout_.text());
    least = std::max({least, line.naturalTextWidth() * unit_, needed * unit_});
  });
  return text::measuredWidth(least, least, 0);
}

ShapedText::Line Paragraph::collect(const QTextLine& line) const {
  ShapedText::Line collected;
  collected.advance = line.horizontalAdvance() * unit_;
  for (std::size_t run = 0; run < runs_.size(); ++run) {
    const int from = std::max(runs_[run].start, line.textStart());
    const int to =
        std::min(runs_[run].start + runs_[run].length, line.textStart() + line.textLength());
    if (from >= to) continue;
    const QList<QGlyphRun> glyphs = line.glyphRuns(from, to - from);
    for (const QGlyphRun& piece : glyphs) {
      const QRectF bounds = piece.boundingRect();
      collected.add(piece, run, bounds.left() * unit_, bounds.right() * unit_);
    }
  }
  return collected;
}

}  // namespace quorix::qt
