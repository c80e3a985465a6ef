#pragma once

#include <QImage>
#include <QPoint>
#include <QRawFont>
#include <cstddef>

#include "platform/foundation/Cache.h"
#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// A picture of a text or glyph: premultiplied ARGB to be blended, or with an opaque ground to be
/// copied.
struct InkPicture {
  QImage image;   ///< null: nothing to see
  QPoint offset;  ///< of the image from its text's or glyph's origin; device pixels

  std::size_t bytes() const { return static_cast<std::size_t>(image.sizeInBytes()); }

  /// Without the borders that show `ground` alone.
  InkPicture cropped(graphics::RGBA ground) const;
};

/// Caches pictures of glyphs without a ground, from which prices are put together: each price is
/// another text of the same few digits. Main thread.
class GlyphPictures {
 public:
  /// The digits and signs of a page's prices in a few sizes and colors, a few hundred bytes each.
  static constexpr std::size_t most = 512;

  /// A glyph's size, color and place on the pixels.
  struct Look {
    quint32 glyph;
    QRgb color;   ///< not premultiplied
    double unit;  ///< device pixels for each pixel of the font
    int place;    ///< of its origin, 64ths of a pixel from that pixel's left edge
    bool operator==(const Look&) const = default;
  };

  /// The picture that Qt draws, at its offset from the pixel that holds the glyph's origin. The
  /// reference holds while fewer than `most` other pictures are asked for.
  const InkPicture& find(const QRawFont& font, Look look);

  void clear() { entries_.clear(); }

 private:
  struct Entry {
    QRawFont font;
    Look look{};
    InkPicture picture;
  };

  foundation::RecentEntries<Entry> entries_{most};
};

}  // namespace quorix::qt
