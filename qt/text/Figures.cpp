#include "qt/text/Figures.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

constexpr std::size_t maximumFaces = 8;

}  // namespace

std::optional<ShapedText> Figures::shape(const text::AttributedText& text, QtFonts& fonts) {
  if (!text::PriceGlyphs::mayBePrice(text)) return std::nullopt;
  const text::Run& run = text.runs[0];
  Face& known = face(run.font);
  if (known.glyphs.isTimeToLearn()) known.isLearned = learn(known, fonts);
  if (!known.isLearned) return std::nullopt;
  QString price = QString::fromStdString(run.text);
  keepFirstNumberWhole(price);  // by a character that `set` refuses
  QList<quint32> indexes;
  QList<QPointF> positions;
  indexes.reserve(price.size());
  positions.reserve(price.size());
  const auto advance = known.glyphs.set(utf16(price), [&](quint32 index, double x) {
    indexes.append(index);
    positions.append({x, 0});
  });
  if (!advance) return std::nullopt;
  QGlyphRun glyphs;
  glyphs.setRawFont(known.font);
  glyphs.setGlyphIndexes(indexes);
  glyphs.setPositions(positions);
  ShapedText shaped;
  shaped.unit = ShapingFont::unit(run.font.points);
  const double width = *advance * shaped.unit;
  shaped.metrics.size = {measuredWidth(width, width, layout::infinity), known.height * shaped.unit};
  shaped.lines.push_back(
      {known.baseline * shaped.unit, width, {{std::move(glyphs), 0}}, {{0, 0, width}}});
  return shaped;
}

Figures::Face& Figures::face(const text::ResolvedFont& font) {
  const auto known = std::ranges::find_if(faces_, [&](const Face& face) {
    return face.name == font.name && face.weight == font.weight;
  });
  if (known != faces_.end()) return *known;
  if (faces_.size() == maximumFaces) faces_.erase(faces_.begin());
  faces_.push_back({font.name, font.weight});
  return faces_.back();
}

bool Figures::learn(Face& face, QtFonts& fonts) {
  for (const std::u16string& sample : text::PriceGlyphs::samples()) {
    const text::ResolvedFont font{face.name, ShapingFont::pixels, face.weight};
    const std::string text = QString::fromStdU16String(sample).toStdString();
    const ShapedText shaped = Paragraph({{{text, font, {}}}}, fonts).breakLines(layout::infinity);
    const ShapedText::Line& line = shaped.lines[0];
    if (line.pieces.size() != 1) return false;
    const QGlyphRun& run = line.pieces[0].glyphs;
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    face.font = run.rawFont();
    face.baseline = line.baseline;
    face.height = shaped.metrics.size.height;
    const QList<QPointF> advances =
        face.font.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
    std::vector<text::PriceGlyphs::Glyph> glyphs;
    for (qsizetype i = 0; i < indexes.size(); ++i) {
      const double advance = advances[i].x();
      // Qt includes ink beyond the end of a line in its width.
      if (face.font.boundingRect(indexes[i]).right() > std::floor(advance)) return false;
      glyphs.push_back({indexes[i], positions[i].x(), advance});
    }
    if (!face.glyphs.learn(sample, glyphs)) return false;
  }
  return true;
}

}  // namespace quorix::qt
