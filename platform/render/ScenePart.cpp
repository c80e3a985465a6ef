#include "platform/render/ScenePart.h"

#include <algorithm>
#include <cmath>

namespace quorix::render {
namespace {

struct Stretch {
  double start;
  double length;
};

Stretch stretchToPaint(double length, Stretch seen, double scale) {
  const double most = mostPixels / scale;
  if (length <= most) return {0, length};
  const double centered = seen.start + (seen.length - most) / 2;
  const double start = std::clamp(centered, 0.0, length - most);
  return {std::floor(start * scale) / scale, most};
}

}  // namespace

layout::Rect partToPaint(layout::Size size, const layout::Rect& seen, double scale) {
  const Stretch across = stretchToPaint(size.width, {seen.origin.x, seen.size.width}, scale);
  const Stretch down = stretchToPaint(size.height, {seen.origin.y, seen.size.height}, scale);
  return {{across.start, down.start}, {across.length, down.length}};
}

Scene partOf(const Scene& scene, const layout::Rect& part) {
  Scene result;
  result.size = part.size;
  result.appearance = scene.appearance;
  result.append(scene, {-part.origin.x, -part.origin.y});
  return result;
}

}  // namespace quorix::render
