#include "qt/Paragraph.h"

#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace quorix::qt {
namespace {

/// Of a font that draws nothing.
constexpr double smallest = 1.0 / 64;

/// Qt breaks lines at U+2028 alone.
QString lineSeparated(const std::string& utf8) {
  QString text = QString::fromStdString(utf8);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  for (QChar& character : text) {
    if (character == QLatin1Char('\n') || character == QLatin1Char('\r') ||
        character == QChar::ParagraphSeparator) {
      character = QChar::LineSeparator;
    }
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

/// Rounded up, so that the text breaks the same way when it is given back its own width.
double measuredWidth(double natural, double offered) {
  const double width = std::ceil(natural * 64) / 64;
  return natural <= offered ? std::min(width, offered) : width;
}

/// Pieces of one run that touch become one span: a decoration is one stroke through them all.
void addSpan(std::vector<ShapedText::Span>& spans, const ShapedText::Span& added) {
  constexpr double touching = 1.0 / 32;
  for (ShapedText::Span& span : spans) {
    const bool apart = added.left > span.right + touching || added.right < span.left - touching;
    if (span.run != added.run || apart) continue;
    span.left = std::min(span.left, added.left);
    span.right = std::max(span.right, added.right);
    return;
  }
  spans.push_back(added);
}

}  // namespace

void Paragraph::set(const text::AttributedText& text, QtFonts& fonts) {
  QString characters;
  runs_.clear();
  for (const text::Run& run : text.runs) {
    const QString part = lineSeparated(run.text);
    runs_.push_back({static_cast<int>(characters.size()), static_cast<int>(part.size())});
    characters += part;
  }
  if (open_) layout_.endLayout();
  open_ = false;
  layout_.clearFormats();
  setText(characters, text, fonts);
}

void Paragraph::setText(const QString& text, const text::AttributedText& attributed,
                        QtFonts& fonts) {
  const text::ResolvedFont first =
      attributed.runs.empty() ? text::ResolvedFont{} : attributed.runs.front().font;
  const bool mixed = std::ranges::any_of(
      attributed.runs, [&](const text::Run& run) { return run.font.points != first.points; });
  units_ = mixed ? ShapingFont::mixedUnits : ShapingFont::pixels / std::max(first.points, smallest);
  const auto shaping = [&](const text::ResolvedFont& wanted) {
    QFont font = fonts.find(wanted).font;
    if (mixed)
      font.setPixelSize(std::max(1, static_cast<int>(std::lround(wanted.points * units_))));
    return font;
  };
  layout_.setText(text);
  layout_.setFont(shaping(first));
  layout_.setTextOption(option(attributed.direction));
  QList<QTextLayout::FormatRange> formats;
  for (std::size_t i = 0; i < runs_.size(); ++i) {
    const text::ResolvedFont& font = attributed.runs[i].font;
    if (font == first || runs_[i].length == 0) continue;
    QTextCharFormat format;
    format.setFont(shaping(font));
    formats.push_back({runs_[i].start, runs_[i].length, format});
  }
  if (!formats.isEmpty()) layout_.setFormats(formats);
}

/// Shaping is the dear part and lasts until the session is opened anew. A session whose only line
/// holds the whole text can be broken again, to a smaller width, without that.
void Paragraph::openSession() {
  if (open_ && layout_.lineCount() == 1) return;
  if (open_) layout_.endLayout();
  layout_.beginLayout();
  open_ = true;
}

ShapedText Paragraph::breakLines(double width, bool glyphs) {
  openSession();
  ShapedText shaped;
  shaped.unitsPerPoint = units_;
  double top = 0;
  double natural = 0;
  for (int number = 0;; ++number) {
    QTextLine line = number < layout_.lineCount() ? layout_.lineAt(number) : layout_.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(std::max(width, 0.0) * units_);
    line.setPosition({0, -line.ascent()});
    const double baseline = top + line.ascent() / units_;
    if (number == 0) shaped.metrics.firstBaseline = baseline;
    shaped.metrics.lastBaseline = baseline;
    shaped.metrics.lines = number + 1;
    natural = std::max(natural, line.naturalTextWidth() / units_);
    top += (line.ascent() + line.descent() + std::max(line.leading(), 0.0)) / units_;
    if (!glyphs) continue;
    shaped.lines.push_back(collect(line));
    shaped.lines.back().baseline = baseline;
  }
  shaped.metrics.size = {measuredWidth(natural, width), top};
  return shaped;
}

ShapedText::Line Paragraph::collect(const QTextLine& line) const {
  ShapedText::Line collected;
  collected.advance = line.horizontalAdvance() / units_;
  for (std::size_t run = 0; run < runs_.size(); ++run) {
    const int from = std::max(runs_[run].start, line.textStart());
    const int to =
        std::min(runs_[run].start + runs_[run].length, line.textStart() + line.textLength());
    if (from >= to) continue;
    const QList<QGlyphRun> glyphs = line.glyphRuns(from, to - from);
    for (const QGlyphRun& piece : glyphs) {
      const QRectF bounds = piece.boundingRect();
      collected.pieces.push_back({piece, run});
      addSpan(collected.spans, {run, bounds.left() / units_, bounds.right() / units_});
    }
  }
  return collected;
}

}  // namespace quorix::qt
