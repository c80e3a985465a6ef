#pragma once

#include <cstddef>
#include <utility>

#include "platform/foundation/Cache.h"
#include "platform/graphics/RGBA.h"
#include "platform/render/Scene.h"
#include "platform/text/AttributedText.h"

namespace quorix::render {

/// Caches pictures of texts that are painted again and again: a row's words are the same on every
/// row. `Picture` tells its size in memory as `bytes()`. One thread.
template <class Picture>
class TextPictures {
 public:
  /// The picture of `item` at `scale` device pixels a point on `ground`, which is opaque or
  /// transparent. Null the first time, since most texts are not painted again; `paint` makes the
  /// picture the second time. The pointer holds until the next call.
  template <class Paint>
  const Picture* find(const TextItem& item, double scale, graphics::RGBA ground, Paint paint) {
    const Key key{item.frame.size.width, scale, ground};
    const std::size_t hash = item.text.shapeHash();
    Entry* const known = entries_.find(
        hash, [&](const Entry& each) { return each.key == key && each.text == item.text; });
    if (!known) {
      Entry& added = entries_.add(hash);
      bytes_ -= added.picture.bytes();
      added.text = item.text;
      added.key = key;
      added.isMade = false;
      added.picture = {};
      return nullptr;
    }
    if (!known->isMade) keep(*known, paint());
    return &known->picture;
  }

  void clear() {
    entries_.clear();
    bytes_ = 0;
  }

 private:
  // The words and figures of a screen full of rows at three pixels a point.
  static constexpr std::size_t mostBytes = std::size_t{2} << 20;
  static constexpr std::size_t mostTexts = 128;

  struct Key {
    double width = 0;
    double scale = 1;
    graphics::RGBA ground;
    bool operator==(const Key&) const = default;
  };
  struct Entry {
    text::AttributedText text;
    Key key;
    bool isMade = false;
    Picture picture;
  };

  void keep(Entry& entry, Picture picture) {
    entry.isMade = true;
    entry.picture = std::move(picture);
    bytes_ += entry.picture.bytes();
    while (bytes_ > mostBytes && entries_.size() > 1) {
      bytes_ -= entries_.oldest().picture.bytes();
      entries_.dropOldest();
    }
  }

  foundation::RecentEntries<Entry> entries_{mostTexts};
  std::size_t bytes_ = 0;
};

}  // namespace quorix::render
