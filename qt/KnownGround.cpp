#include "qt/KnownGround.h"

#include <algorithm>

namespace quorix::qt {

std::optional<graphics::RGBA> KnownGround::under(const QRect& pixels) const {
  const auto top = std::find_if(layers_.rbegin(), layers_.rend(), [&](const Layer& layer) {
    return layer.pixels.intersects(pixels);
  });
  if (top == layers_.rend()) return graphics::RGBA{0, 0, 0, 0};
  return top->pixels.contains(pixels) ? top->color : std::nullopt;
}

void KnownGround::filled(const QRect& pixels, graphics::RGBA color) {
  if (color.alpha != 255) return painted(pixels);
  layers_.push_back({pixels, color});
}

void KnownGround::inked(const QRect& pixels) {
  const auto ground = under(pixels);
  if (!ground || ground->alpha != 0) painted(pixels);
}

}  // namespace quorix::qt
