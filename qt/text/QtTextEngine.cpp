#include "qt/text/QtTextEngine.h"

#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

#include "qt/ApplicationLifetime.h"

namespace quorix::qt {
namespace {

using PriceGlyph = text::PriceGlyphs::Glyph;

/// The glyphs of a line. None if they are of several faces, or if there is ink beyond the line's
/// end: Qt includes that in the line's width.
std::vector<PriceGlyph> glyphsOf(const ShapedText::Line& line) {
  if (line.pieces.size() != 1) return {};
  const QGlyphRun& run = line.pieces[0].glyphs;
  const QRawFont font = run.rawFont();
  const QList<quint32> indexes = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  const QList<QPointF> advances = font.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
  std::vector<PriceGlyph> glyphs;
  for (qsizetype i = 0; i < indexes.size(); ++i) {
    const double advance = advances[i].x();
    if (font.boundingRect(indexes[i]).right() > std::floor(advance)) return {};
    glyphs.push_back({indexes[i], positions[i].x(), advance});
  }
  return glyphs;
}

QGlyphRun glyphRun(const QGlyphRun& like, const std::vector<PriceGlyph>& glyphs) {
  QList<quint32> indexes;
  QList<QPointF> positions;
  indexes.reserve(std::ssize(glyphs));
  positions.reserve(std::ssize(glyphs));
  for (const PriceGlyph& glyph : glyphs) {
    indexes.append(glyph.index);
    positions.append({glyph.x, 0});
  }
  QGlyphRun run;
  run.setRawFont(like.rawFont());
  run.setGlyphIndexes(indexes);
  run.setPositions(positions);
  return run;
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
  const auto learn = [this](const text::AttributedText& sample, std::vector<PriceGlyph>& glyphs) {
    ShapedText shaped = Paragraph(sample, fonts_).breakLines(layout::infinity);
    glyphs = glyphsOf(shaped.lines[0]);
    return shaped;
  };
  const auto breakLines = [&](const text::AttributedText& unknown, double points) {
    const bool isPrice = points == layout::infinity && text::PriceGlyphs::mayBePrice(unknown) &&
                         !splitsFirstNumber(QString::fromStdString(unknown.runs[0].text));
    if (isPrice) {
      const double unit = ShapingFont::unit(unknown.runs[0].font.points);
      if (auto price = prices_.set(unknown, unit, learn, glyphRun)) return *std::move(price);
    }
    ++breaks_;
    return Paragraph(unknown, fonts_).breakLines(points);
  };
  return lines_.lines(text, std::max(width, 0.0), breakLines);
}

render::TextPictures<render::InkPicture>& QtTextEngine::pictures() {
  if (fonts_.refresh()) clear();
  return pictures_;
}

void QtTextEngine::clear() {
  lines_.clear();
  pictures_.clear();
  prices_.clear();
}

}  // namespace quorix::qt
