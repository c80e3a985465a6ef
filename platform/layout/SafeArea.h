#pragma once

#include <algorithm>

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// The part of a surface that nothing of the device lies over, and how far the surface goes on
/// around it.
struct SafeArea {
  Rect frame;
  EdgeInsets insets;

  /// Of a surface of `size`; nothing is left where the insets meet.
  static SafeArea within(Size size, const EdgeInsets& insets) {
    return {{{insets.leading, insets.top},
             {std::max(0.0, size.width - insets.leading - insets.trailing),
              std::max(0.0, size.height - insets.top - insets.bottom)}},
            insets};
  }

  /// How far `rect` may go on beyond those of `edges` at which it reaches the area's own.
  EdgeInsets beyond(const Rect& rect, Edges edges) const {
    constexpr double touching = 1e-6;
    EdgeInsets more;
    if (edges.top && rect.top() <= frame.top() + touching) more.top = insets.top;
    if (edges.leading && rect.left() <= frame.left() + touching) more.leading = insets.leading;
    if (edges.bottom && rect.bottom() >= frame.bottom() - touching) more.bottom = insets.bottom;
    if (edges.trailing && rect.right() >= frame.right() - touching) {
      more.trailing = insets.trailing;
    }
    return more;
  }
};

}  // namespace quorix::layout
