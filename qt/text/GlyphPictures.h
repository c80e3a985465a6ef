#pragma once

#include <QImage>
#include <QPoint>
#include <QRawFont>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// Ink in premultiplied ARGB, or on an opaque ground to be copied over it.
struct InkPicture {
  QImage image;   ///< null: nothing to see
  QPoint offset;  ///< of the image from its text's or glyph's origin; device pixels

  std::size_t bytes() const { return static_cast<std::size_t>(image.sizeInBytes()); }

  /// Without the borders that show `ground` alone.
  InkPicture cropped(graphics::RGBA ground) const;
};

/// Glyphs as they look on nothing, for texts that are painted once: each price is another text of
/// the same few digits. Main thread.
class GlyphPictures {
 public:
  /// A glyph at its size, color and place on the pixels.
  struct Key {
    std::size_t font;  ///< as `fontNumber` says
    quint32 glyph;
    QRgb color;   ///< not premultiplied
    double unit;  ///< device pixels for each pixel of the font
    int place;    ///< of its origin, 64ths of a pixel from that pixel's left edge
    bool operator==(const Key&) const = default;
  };

  /// The number of `font` until the next call of `clear` or of this for another font.
  std::size_t fontNumber(const QRawFont& font);

  /// The picture that Qt draws, at its offset from the pixel that holds the glyph's origin. The
  /// reference holds until the next call of `fontNumber`.
  const InkPicture& find(Key key);

  void clear();

 private:
  struct Hash {
    std::size_t operator()(const Key& key) const;
  };

  InkPicture paint(const Key& key) const;

  std::vector<QRawFont> fonts_;
  std::unordered_map<Key, InkPicture, Hash> pictures_;
};

}  // namespace quorix::qt
