#include "qt/text/GlyphPictures.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {

InkPicture InkPicture::cropped(graphics::RGBA ground) const {
  const bool opaque = ground.alpha == 255;
  const QRgb bare = opaque ? toQColor(ground).rgb() : 0;
  const auto isInk = [&](QRgb pixel) { return pixel != bare; };
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto* end = line + image.width();
    const auto* first = std::find_if(line, end, isInk);
    if (first == end) continue;
    const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isInk);
    ink |= QRect(static_cast<int>(first - line), y, static_cast<int>(last.base() - first), 1);
  }
  if (ink.isEmpty()) return {};
  QImage cut = image.copy(ink);
  // Drawing an image without an alpha channel is copying it.
  if (opaque) cut.reinterpretAsFormat(QImage::Format_RGB32);
  return {std::move(cut), offset + ink.topLeft()};
}

namespace {

InkPicture paint(const QRawFont& font, const GlyphPictures::Look& look) {
  const QRectF ink = font.boundingRect(look.glyph);
  const double reach = std::max({-ink.left(), ink.right(), -ink.top(), ink.bottom()});
  const int room = static_cast<int>(std::ceil(reach * look.unit)) + 2;
  QImage image(2 * room, 2 * room, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QGlyphRun glyph;
  glyph.setRawFont(font);
  glyph.setGlyphIndexes({look.glyph});
  glyph.setPositions({QPointF()});
  QPainter painter(&image);
  painter.setTransform(QTransform(look.unit, 0, 0, look.unit, room + look.place / 64.0, room));
  painter.setPen(QColor::fromRgba(look.color));
  painter.drawGlyphRun({}, glyph);
  painter.end();
  return InkPicture{image, {-room, -room}}.cropped({0, 0, 0, 0});
}

}  // namespace

const InkPicture& GlyphPictures::find(const QRawFont& font, Look look) {
  // Qt rounds places down to a quarter of a pixel. The last 64th of a quarter may count as the
  // next, so it has a picture of its own.
  if (look.place % 16 != 15) look.place -= look.place % 16;
  const std::size_t hash = (std::size_t{look.glyph} << 6 | static_cast<std::size_t>(look.place)) ^
                           std::size_t{look.color} << 32;
  const Entry* const known = entries_.find(
      hash, [&](const Entry& each) { return each.look == look && each.font == font; });
  if (known) return known->picture;
  Entry& added = entries_.add(hash);
  added = {font, look, paint(font, look)};
  return added.picture;
}

}  // namespace quorix::qt
