#pragma once

#include <QImage>
#include <QPoint>
#include <QRawFont>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "qt/TextPictures.h"

namespace quorix::qt {

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
  const TextPictures::Picture& find(Key key);

  void clear();

 private:
  struct Hash {
    std::size_t operator()(const Key& key) const;
  };

  TextPictures::Picture paint(const Key& key) const;

  std::vector<QRawFont> fonts_;
  std::unordered_map<Key, TextPictures::Picture, Hash> pictures_;
};

}  // namespace quorix::qt
