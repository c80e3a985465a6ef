#include "qt/text/TextPictures.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <string>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

void mix(std::size_t& hash, std::size_t value) {
  hash ^= value + 0x9e3779b97f4a7c15ULL + (hash << 6) + (hash >> 2);
}

}  // namespace

std::size_t TextIdentity::operator()(const text::AttributedText* text) const {
  auto hash = static_cast<std::size_t>(text->direction);
  for (const text::Run& run : text->runs) {
    mix(hash, std::hash<std::string>{}(run.text));
    mix(hash, std::hash<double>{}(run.font.points));
  }
  return hash;
}

bool TextIdentity::operator()(const text::AttributedText* one,
                              const text::AttributedText* other) const {
  return one->direction == other->direction &&
         std::ranges::equal(one->runs, other->runs, [](const auto& a, const auto& b) {
           return a.text == b.text && a.font == b.font;
         });
}

namespace {

// The words and figures of a screen full of rows at three pixels a point.
constexpr std::size_t maximumBytes = std::size_t{2} << 20;
constexpr std::size_t maximumEntries = 128;

}  // namespace

TextPictures::Picture TextPictures::cropped(const Picture& picture, graphics::RGBA ground) {
  const bool opaque = ground.alpha == 255;
  const QRgb bare = opaque ? toQColor(ground).rgb() : 0;
  const QImage& image = picture.image;
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
  return {std::move(cut), picture.offset + ink.topLeft()};
}

TextPictures::Entry* TextPictures::known(const render::TextItem& item, double scale,
                                         graphics::RGBA ground) {
  const std::size_t hash = TextIdentity{}(&item.text);
  const auto [first, last] = index_.equal_range(hash);
  for (auto row = first; row != last; ++row) {
    const Entry& entry = *row->second;
    if (entry.scale != scale || entry.ground != ground || entry.width != item.frame.size.width ||
        entry.text != item.text) {
      continue;
    }
    entries_.splice(entries_.begin(), entries_, row->second);
    return &entries_.front();
  }
  if (entries_.size() < maximumEntries) {
    entries_.push_front({item.text, item.frame.size.width, scale, ground, false, {}});
    index_.emplace(hash, entries_.begin());
    return nullptr;
  }
  // The entry that was used least recently takes the text, with its memory.
  const auto oldest = std::prev(entries_.end());
  auto node = index_.extract(indexOf(oldest));
  bytes_ -= static_cast<std::size_t>(oldest->picture.image.sizeInBytes());
  oldest->text = item.text;
  oldest->width = item.frame.size.width;
  oldest->scale = scale;
  oldest->ground = ground;
  oldest->made = false;
  oldest->picture = {};
  node.key() = hash;
  index_.insert(std::move(node));
  entries_.splice(entries_.begin(), entries_, oldest);
  return nullptr;
}

void TextPictures::keep(Entry& entry, Picture picture) {
  entry.made = true;
  entry.picture = cropped(picture, entry.ground);
  bytes_ += static_cast<std::size_t>(entry.picture.image.sizeInBytes());
  while (bytes_ > maximumBytes && entries_.size() > 1) dropLast();
}

TextPictures::Index::iterator TextPictures::indexOf(Entries::iterator entry) {
  const auto [first, end] = index_.equal_range(TextIdentity{}(&entry->text));
  return std::find_if(first, end, [&](const auto& row) { return row.second == entry; });
}

void TextPictures::dropLast() {
  const auto last = std::prev(entries_.end());
  index_.erase(indexOf(last));
  bytes_ -= static_cast<std::size_t>(last->picture.image.sizeInBytes());
  entries_.erase(last);
}

void TextPictures::clear() {
  index_.clear();
  entries_.clear();
  bytes_ = 0;
}

namespace {

// The digits and signs of a page's prices in a few sizes and colors, a few hundred bytes each.
constexpr std::size_t maximumPictures = 512;
constexpr std::size_t maximumFonts = 8;

}  // namespace

std::size_t GlyphPictures::fontNumber(const QRawFont& font) {
  // Here, since a text holds on to its pictures.
  if (pictures_.size() > maximumPictures) clear();
  const auto known = std::ranges::find(fonts_, font);
  if (known != fonts_.end()) return static_cast<std::size_t>(known - fonts_.begin());
  if (fonts_.size() == maximumFonts) clear();
  fonts_.push_back(font);
  return fonts_.size() - 1;
}

const TextPictures::Picture& GlyphPictures::find(Key key) {
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

TextPictures::Picture GlyphPictures::paint(const Key& key) const {
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
  return TextPictures::cropped({image, {-room, -room}}, {0, 0, 0, 0});
}

}  // namespace quorix::qt
