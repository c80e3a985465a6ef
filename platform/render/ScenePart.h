#pragma once

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/render/Scene.h"

namespace quorix::render {

/// The largest side of a picture of a view, in device pixels: graphics cards support textures of
/// this size.
inline constexpr double mostPixels = 8192;

/// The part to paint of a view of `size` points, at `scale` device pixels a point, while `seen` is
/// visible. A side longer than `mostPixels` is cut to that length with `seen` in the middle, so
/// that the view can scroll a while before it is painted again. The part begins on a whole device
/// pixel. Any thread.
QUORIX_EXPORT layout::Rect partToPaint(layout::Size size, const layout::Rect& seen, double scale);

/// The display list of `part`, with the part's origin at zero. Any thread.
QUORIX_EXPORT Scene partOf(const Scene& scene, const layout::Rect& part);

}  // namespace quorix::render
