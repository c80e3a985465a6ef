#include "qt/text/GlyphPictures.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

// The digits and signs of a page's prices in a few sizes and colors, a few hundred bytes each.
constexpr std::size_t maximumPictures = 512;
constexpr std::size_t maximumFonts = 8;

}  // namespace

InkPicture InkPicture::cropped(graphics::RGBA ground) const {
  const bool opaque = ground.alpha == 255;
  const QRgb bare = opaque ? toQColor(ground).rgb() : 0;
  int left = image.width(), right = -1, top = image.height(), bottom = -1;
  for (int y = 0; y < image.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto inked = [&](QRgb pixel) { return pixel != bare; };
    const auto* end = line + image.width();
    const auto* first = std::find_if(line, end, inked);
    if (first == end) continue;
    const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), inked);
    left = std::min(left, static_cast<int>(first - line));
    right = std::max(right, static_cast<int>(last.base() - line) - 1);
    top = std::min(top, y);
    bottom = y;
  }
  if (bottom < 0) return {};
  const QRect ink(QPoint(left, top), QPoint(right, bottom));
  QImage cut = image.copy(ink);
  // Drawing an image without an alpha channel is copying it.
  if (opaque) cut.reinterpretAsFormat(QImage::Format_RGB32);
  return {std::move(cut), offset + ink.topLeft()};
}

std::size_t GlyphPictures::fontNumber(const QRawFont& font) {
  // Here, since a text holds on to its pictures.
  if (pictures_.size() > maximumPictures) clear();
  const auto known = std::ranges::find(fonts_, font);
  if (known != fonts_.end()) return static_cast<std::size_t>(known - fonts_.begin());
  if (fonts_.size() == maximumFonts) clear();
  fonts_.push_back(font);
  return fonts_.size() - 1;
}

const InkPicture& GlyphPictures::find(Key key) {
  // Qt sets a glyph on the quarter of a pixel before its place. The last 64th of each may count as
  // the next, so it is left to Qt.
  if (key.place % 16 != 15) key.place -= key.place % 16;
  const auto known = pictures_.find(key);
  return known != pictures_.end() ? known->second
                                  : pictures_.emplace(key, paint(key)).first->second;
}

void GlyphPictures::clear() {
  fonts_.clear();
  pictures_.clear();
}

std::size_t GlyphPictures::Hash::operator()(const Key& key) const {
  const std::size_t place = key.font << 6 | static_cast<std::size_t>(key.place);
  return (std::size_t{key.glyph} << 10 | place) ^ std::size_t{key.color} << 32;
}

InkPicture GlyphPictures::paint(const Key& key) const {
  const QRawFont& font = fonts_[key.font];
  const QRectF ink = font.boundingRect(key.glyph);
  const double reach = std::max({-ink.left(), ink.right(), -ink.top(), ink.bottom()});
  const int room = static_cast<int>(std::ceil(reach * key.unit)) + 2;
  QImage image(2 * room, 2 * room, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QGlyphRun glyph;
  glyph.setRawFont(font);
  glyph.setGlyphIndexes({key.glyph});
  glyph.setPositions({QPointF()});
  QPainter painter(&image);
  painter.setTransform(QTransform(key.unit, 0, 0, key.unit, room + key.place / 64.0, room));
  painter.setPen(QColor::fromRgba(key.color));
  painter.drawGlyphRun({}, glyph);
  painter.end();
  return InkPicture{image, {-room, -room}}.cropped({0, 0, 0, 0});
}

}  // namespace quorix::qt
