#pragma once

#include <QRect>
#include <algorithm>
#include <optional>
#include <vector>

#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// What lies under the next item of a scene, item being painted over item on a surface that was
/// empty. Rects are in device pixels.
class KnownGround {
 public:
  /// The one color that all of `pixels` have: opaque, or transparent where nothing was painted.
  /// Absent where that is not known.
  std::optional<graphics::RGBA> under(const QRect& pixels) const {
    const auto top = std::find_if(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
      return layer.pixels.intersects(pixels);
    });
    if (top == layers_.rend()) return graphics::RGBA{0, 0, 0, 0};
    return top->pixels.contains(pixels) ? top->color : std::nullopt;
  }

  /// Every one of `pixels` has `color` now, if that is opaque.
  void filled(const QRect& pixels, graphics::RGBA color) {
    if (color.alpha != 255) return painted(pixels);
    layers_.push_back({pixels, color});
  }

  /// Some of `pixels` were painted, no others.
  void painted(const QRect& pixels) { layers_.push_back({pixels, std::nullopt}); }

  /// A text was painted, its ink in `pixels`. Text on an empty ground leaves it empty: texts stand
  /// beside each other and a picture is blended there, so overlapping ink is harmless.
  void inked(const QRect& pixels) {
    const auto ground = under(pixels);
    if (!ground || ground->alpha != 0) painted(pixels);
  }

 private:
  struct Layer {
    QRect pixels;
    std::optional<graphics::RGBA> color;  ///< absent: of more than one, or not known
  };

  std::vector<Layer> layers_;  ///< the last on top
};

}  // namespace quorix::qt
