#include "qt/text/Figures.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>
#include <utility>

namespace quorix::qt {
namespace {

constexpr std::size_t maximumFaces = 8;
// Learning costs as much as shaping some fifty prices: too much for a page with a row or two.
constexpr int pricesToLearn = 16;

/// Each of `characters` before and after each of them.
QString pairs(const QString& characters) {
  QString all;
  for (qsizetype one = 0; one < characters.size(); ++one) {
    all += characters[one];
    for (qsizetype other = one + 1; other < characters.size(); ++other) {
      all += characters[one];
      all += characters[other];
    }
  }
  return all + characters[0];
}

bool mayBePrice(const text::AttributedText& text) {
  return text.runs.size() == 1 && text.direction == layout::LayoutDirection::leftToRight &&
         Figures::areIn(text.runs[0]);
}

/// Keeps `value`, if it is the first or the one before.
template <class Value>
bool agree(std::optional<Value>& known, Value value) {
  if (!known) known = value;
  return known == value;
}

}  // namespace

std::optional<ShapedText> Figures::shape(const text::AttributedText& text, QtFonts& fonts) {
  if (!mayBePrice(text)) return std::nullopt;
  const text::Run& run = text.runs[0];
  Face& known = face(run.font);
  if (known.prices < pricesToLearn && ++known.prices == pricesToLearn) {
    known.isLearned = learn(known, fonts);
  }
  if (!known.isLearned) return std::nullopt;
  QString price = QString::fromStdString(run.text);
  keepFirstNumberWhole(price);  // with a character that is none of a price's
  QList<quint32> indexes;
  QList<QPointF> positions;
  indexes.reserve(price.size());
  positions.reserve(price.size());
  double advance = 0;
  qsizetype at = characters.indexOf(price[0]);
  for (qsizetype i = 0; i < price.size(); ++i) {
    const bool isLast = i + 1 == price.size();
    const qsizetype next = isLast ? characters.size() : characters.indexOf(price[i + 1]);
    if (at < 0 || next < 0) return std::nullopt;
    const Glyph& glyph = known.glyphs[static_cast<std::size_t>(at)];
    indexes.append(*glyph.index);
    positions.append({advance, 0});
    advance += *glyph.advances[static_cast<std::size_t>(next)];
    at = next;
  }
  QGlyphRun glyphs;
  glyphs.setRawFont(known.font);
  glyphs.setGlyphIndexes(indexes);
  glyphs.setPositions(positions);
  ShapedText shaped;
  shaped.unit = ShapingFont::unit(run.font.points);
  const double width = advance * shaped.unit;
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

/// From two texts, in which each pair has other neighbors.
bool Figures::learn(Face& face, QtFonts& fonts) {
  const QString forth = characters.toString();
  QString back = forth;
  std::ranges::reverse(back);
  for (const QString& order : {forth, back}) {
    const QString text = pairs(order);
    Paragraph paragraph;
    paragraph.set({{{text.toStdString(), {face.name, ShapingFont::pixels, face.weight}, {}}}},
                  fonts);
    if (!learn(face, text, paragraph.breakLines(layout::infinity, true))) return false;
  }
  return true;
}

bool Figures::learn(Face& face, const QString& text, const ShapedText& shaped) {
  const ShapedText::Line& line = shaped.lines[0];
  if (line.pieces.size() != 1) return false;
  const QGlyphRun& run = line.pieces[0].glyphs;
  const QList<quint32> indexes = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  if (indexes.size() != text.size()) return false;
  face.font = run.rawFont();
  face.baseline = line.baseline;
  face.height = shaped.metrics.size.height;
  const QList<QPointF> ends =
      face.font.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    Glyph& glyph = face.glyphs[static_cast<std::size_t>(characters.indexOf(text[i]))];
    const auto next = static_cast<std::size_t>(characters.indexOf(text[i + 1]));
    glyph.advances[count] = ends[i].x();
    const bool isKnown = agree(glyph.index, indexes[i]) &&
                         agree(glyph.advances[next], positions[i + 1].x() - positions[i].x());
    // Qt counts ink beyond a line's end into its width.
    if (!isKnown || face.font.boundingRect(indexes[i]).right() > std::floor(ends[i].x())) {
      return false;
    }
  }
  return true;
}

}  // namespace quorix::qt
