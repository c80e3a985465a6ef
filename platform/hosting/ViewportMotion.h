#pragma once

#include <cmath>
#include <optional>
#include <utility>

#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// Follows from frame to frame what is visible of several views with one parent, and picks those
/// that a scroll concerns. Rectangles are in the parent's coordinates. Main thread.
class ViewportMotion {
 public:
  /// The viewport moved. `origin` is the parent's in the window, absent while the parent is scaled
  /// or turned there; `scale` is the device pixels for each point.
  void move(const layout::Rect& visible, std::optional<layout::Point> origin, double scale) {
    const auto whole = [&](double way) { return way * scale == std::round(way * scale); };
    keepsPixels_ =
        origin && origin_ && whole(origin->x - origin_->x) && whole(origin->y - origin_->y);
    origin_ = origin;
    before_ = std::exchange(visible_, visible);
  }

  /// Whether the move may change what is seen of a view with these bounds, or on which parts of
  /// pixels it stands. Most views of a list are in sight as a whole before and after a move by
  /// whole pixels, which does not concern them.
  bool concerns(const layout::Rect& bounds, bool isNew) const {
    if (!overlap(visible_, bounds) && !overlap(before_, bounds)) return false;
    return isNew || !keepsPixels_ || !visible_.contains(bounds) || !before_.contains(bounds);
  }

 private:
  static bool overlap(const layout::Rect& a, const layout::Rect& b) {
    return !layout::intersection(a, b).isEmpty();
  }

  layout::Rect visible_;
  layout::Rect before_;  ///< visible before the move
  std::optional<layout::Point> origin_;
  bool keepsPixels_ = false;
};

}  // namespace quorix::hosting
