#pragma once

#include <cmath>

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// The device pixels that points fall on.
class PixelGrid {
 public:
  /// `scale`: device pixels for each point, above 0.
  explicit PixelGrid(double scale) : scale_(scale) {}

  double pixel() const { return 1 / scale_; }
  /// The nearest pixel. Halves, and what misses one by rounding noise, all go the same way, so that
  /// a hairline between two halves neither vanishes nor doubles.
  double round(double length) const { return std::floor(length * scale_ + 0.5 + noise) / scale_; }

  /// The next whole pixel; a length that misses one by rounding noise stays there.
  double ceil(double length) const { return std::ceil(length * scale_ - noise) / scale_; }
  /// The whole pixel before, likewise.
  double floor(double length) const { return std::floor(length * scale_ + noise) / scale_; }
  Size ceil(Size size) const { return {ceil(size.width), ceil(size.height)}; }

  /// Rounds edge by edge, so that neighbors that touch still touch.
  Rect round(const Rect& rect) const {
    const Point origin = {round(rect.left()), round(rect.top())};
    return {origin, {round(rect.right()) - origin.x, round(rect.bottom()) - origin.y}};
  }

 private:
  static constexpr double noise = 1e-6;
  double scale_;
};

}  // namespace quorix::layout
