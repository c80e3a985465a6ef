#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"
#include "platform/render/TextPictures.h"

namespace quorix::render {

/// An image in memory, in premultiplied ARGB with 32 bits a pixel.
struct Pixels {
  std::uint32_t* first = nullptr;
  std::size_t step = 0;  ///< pixels from a row to the next
  std::size_t width = 0;
  std::size_t height = 0;

  std::span<std::uint32_t> row(std::size_t y) const { return {first + y * step, width}; }
};

/// A picture of a text: the rectangle around its ink.
struct InkPicture {
  layout::Rect frame;                 ///< from the text's origin; device pixels
  std::vector<std::uint32_t> pixels;  ///< row by row; empty: nothing to see

  std::size_t bytes() const { return pixels.size() * sizeof(std::uint32_t); }

  /// The picture of a text that was painted on `ground` alone, with its origin at `origin`.
  QUORIX_EXPORT static InkPicture cropped(const Pixels& painted, layout::Point origin,
                                          graphics::RGBA ground);
};

/// Tracks which parts of an image have one known color while a display list is painted on it.
/// Paints opaque fills, and texts over a known color from their pictures. The toolkit paints the
/// rest and reports it here. Device pixels.
class KnownGround {
 public:
  explicit KnownGround(const Pixels& empty)
      : image_(empty), clip_{{}, {double(empty.width), double(empty.height)}} {}

  /// The color of all of `part`: opaque, or transparent if nothing but texts was painted there.
  /// Absent if it differs or is not known.
  QUORIX_EXPORT std::optional<graphics::RGBA> under(const layout::Rect& part) const;

  /// All of `part` was filled with `color`.
  QUORIX_EXPORT void filled(const layout::Rect& part, graphics::RGBA color);
  /// Something was painted within `part`.
  void painted(const layout::Rect& part) { layers_.push_back({part, std::nullopt}); }
  /// A text was painted in `frame`. Its ink may leave the frame.
  void inkedAround(const layout::Rect& frame) { inked(frame.outset(std::ceil(frame.size.height))); }

  /// Later fills and pictures are clipped to `part` too.
  void clip(const layout::Rect& part) { clip_ = intersection(clip_, part); }
  /// Fills `part` of the image. False if `color` is not opaque.
  QUORIX_EXPORT bool fill(const layout::Rect& part, graphics::RGBA color) const;

  /// Paints `item` from its picture, at `scale` device pixels a point. `paint(ground)` makes a
  /// picture that `pictures` lacks, and `blend(picture, origin)` paints it where texts may overlap.
  /// False if there is no picture for the ground under the text, or if the text does not begin on a
  /// whole pixel.
  template <class Paint, class Blend>
  bool paint(const TextItem& item, double scale, TextPictures<InkPicture>& pictures, Paint paint,
             Blend blend) {
    constexpr double highest = 128;
    constexpr double slack = 1e-6;  // of a place on whole pixels, after some additions
    const layout::Point exact = {item.frame.left() * scale, item.frame.top() * scale};
    const layout::Point at = {std::round(exact.x), std::round(exact.y)};
    const layout::Size size = {item.frame.size.width * scale, item.frame.size.height * scale};
    const bool isWhole = std::abs(exact.x - at.x) < slack && std::abs(exact.y - at.y) < slack;
    const auto ground = under({at, size});
    if (!isWhole || size.height >= highest || !ground) return false;
    const auto* picture = pictures.find(item, scale, *ground, [&] { return paint(*ground); });
    if (picture == nullptr || picture->pixels.empty()) return picture != nullptr;
    const layout::Rect ink = picture->frame.translated(at);
    if (under(ink) != ground) return false;
    if (!copy(*picture, ink)) blend(*picture, ink.origin);
    inked(ink);
    return true;
  }

 private:
  struct Layer {
    layout::Rect part;
    std::optional<graphics::RGBA> color;  ///< absent: of more than one, or not known
  };

  /// A text was painted, its ink within `part`.
  QUORIX_EXPORT void inked(const layout::Rect& part);
  QUORIX_EXPORT bool copy(const InkPicture& picture, const layout::Rect& to) const;
  template <class Write>
  void eachRow(const layout::Rect& part, Write write) const;

  Pixels image_;
  layout::Rect clip_;
  std::vector<Layer> layers_;       ///< the last on top
  std::vector<layout::Rect> inks_;  ///< of texts that lie on no layer
};

}  // namespace quorix::render
