#pragma once

#include <QImage>
#include <QPoint>
#include <QRawFont>
#include <cstddef>
#include <list>
#include <unordered_map>
#include <vector>

#include "platform/render/Scene.h"
#include "platform/text/AttributedText.h"

namespace quorix::qt {

/// Compares and hashes texts by what shaping depends on: characters, fonts and direction, not
/// colors and decorations.
struct TextIdentity {
  std::size_t operator()(const text::AttributedText* text) const;
  bool operator()(const text::AttributedText* one, const text::AttributedText* other) const;
};

/// Texts as they look on nothing or on one color, for those that are painted over and over: a
/// row's words are the same on every row. Main thread.
class TextPictures {
 public:
  struct Picture {
    QImage image;   ///< null: nothing to see
    QPoint offset;  ///< of the image from the frame's top left corner; device pixels
  };

  /// The picture of `item` at `scale` device pixels a point, on `ground`, which is opaque or
  /// nothing at all; on an opaque ground, to be copied over it. The first time there is none, since
  /// most texts are not painted again; the second time `paint` makes it, an image that holds all of
  /// the text's ink in premultiplied ARGB. The pointer holds until the next call.
  template <class Paint>
  const Picture* find(const render::TextItem& item, double scale, graphics::RGBA ground,
                      Paint paint) {
    Entry* entry = known(item, scale, ground);
    if (!entry) return nullptr;
    if (!entry->made) keep(*entry, paint());
    return &entry->picture;
  }

  void clear();

  /// `picture` without the borders that show its ground alone.
  static Picture cropped(const Picture& picture, graphics::RGBA ground);

 private:
  struct Entry {
    text::AttributedText text;
    double width = 0;
    double scale = 1;
    graphics::RGBA ground;
    bool made = false;
    Picture picture;
  };
  using Entries = std::list<Entry>;
  using Index = std::unordered_multimap<std::size_t, Entries::iterator>;

  Entry* known(const render::TextItem& item, double scale, graphics::RGBA ground);
  void keep(Entry& entry, Picture picture);
  Index::iterator indexOf(Entries::iterator entry);
  void dropLast();

  Entries entries_;  ///< the latest used first
  Index index_;
  std::size_t bytes_ = 0;
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
