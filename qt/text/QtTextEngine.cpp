#include "qt/text/QtTextEngine.h"

#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

/// Appends the glyphs of a line in one face. False if there are others, or ink beyond its end: Qt
/// includes that in the line's width.
bool append(const ShapedText::Line& line, std::vector<text::PriceGlyphs::Glyph>& glyphs) {
  if (line.pieces.size() != 1) return false;
  const QGlyphRun& run = line.pieces[0].glyphs;
  const QRawFont font = run.rawFont();
  const QList<quint32> indexes = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  const QList<QPointF> advances = font.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
  for (qsizetype i = 0; i < indexes.size(); ++i) {
    const double advance = advances[i].x();
    if (font.boundingRect(indexes[i]).right() > std::floor(advance)) return false;
    glyphs.push_back({indexes[i], positions[i].x(), advance});
  }
  return true;
}

}  // namespace

QtTextEngine& QtTextEngine::shared() { return applicationLifetime<QtTextEngine>(); }

text::TextMetrics QtTextEngine::measure(const text::AttributedText& text, double width) {
  return shape(text, width).metrics;
}

double QtTextEngine::leastWidth(const text::AttributedText& text) {
  if (fonts_.refresh()) clear();
  return lines_.leastWidth(text, [this](const text::AttributedText& unknown) {
    return Paragraph(unknown, fonts_).leastWidth();
  });
}

const ShapedText& QtTextEngine::shape(const text::AttributedText& text, double width) {
  if (fonts_.refresh()) clear();
  const auto breakLines = [this](const text::AttributedText& unknown, double points) {
    if (points == layout::infinity) {
      if (auto price = setPrice(unknown)) return *std::move(price);
    }
    ++breaks_;
    return Paragraph(unknown, fonts_).breakLines(points);
  };
  return lines_.lines(text, std::max(width, 0.0), breakLines);
}

TextPictures& QtTextEngine::pictures() {
  if (fonts_.refresh()) clear();
  return pictures_;
}

/// What `Paragraph` makes of a price at infinite width. Absent for other texts, and while the face
/// was not learned.
std::optional<ShapedText> QtTextEngine::setPrice(const text::AttributedText& text) {
  const auto shape = [&](const std::u16string& sample, const std::string& name,
                         swiftui::FontWeight weight, auto& glyphs) -> std::optional<ShapedText> {
    const std::string words = QString::fromStdU16String(sample).toStdString();
    ShapedText shaped = Paragraph({{{words, {name, ShapingFont::pixels, weight}, {}}}}, fonts_)
                            .breakLines(layout::infinity);
    return append(shaped.lines[0], glyphs) ? std::optional(std::move(shaped)) : std::nullopt;
  };
  const auto* face = prices_.find(text, shape);
  if (!face) return std::nullopt;
  const text::Run& run = text.runs[0];
  const QString price = QString::fromStdString(run.text);
  if (splitsFirstNumber(price)) return std::nullopt;
  QList<quint32> indexes;
  QList<QPointF> positions;
  indexes.reserve(price.size());
  positions.reserve(price.size());
  const auto advance = face->glyphs.set(utf16(price), [&](quint32 index, double x) {
    indexes.append(index);
    positions.append({x, 0});
  });
  if (!advance) return std::nullopt;
  const ShapedText::Line& like = face->sample->lines[0];
  QGlyphRun glyphs;
  glyphs.setRawFont(like.pieces[0].glyphs.rawFont());
  glyphs.setGlyphIndexes(indexes);
  glyphs.setPositions(positions);
  ShapedText shaped;
  shaped.unit = ShapingFont::unit(run.font.points);
  const double width = *advance * shaped.unit;
  shaped.metrics.size = {text::measuredWidth(width, width, layout::infinity),
                         face->sample->metrics.size.height * shaped.unit};
  shaped.lines.push_back({like.baseline * shaped.unit, width, {}, {}});
  shaped.lines[0].add(std::move(glyphs), 0, 0, width);
  return shaped;
}

void QtTextEngine::clear() {
  lines_.clear();
  pictures_.clear();
  prices_.clear();
}

}  // namespace quorix::qt
