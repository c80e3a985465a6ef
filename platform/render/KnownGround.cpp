#include "platform/render/KnownGround.h"

#include <algorithm>

namespace quorix::render {
namespace {

using graphics::RGBA;
using layout::Rect;

constexpr RGBA transparent{0, 0, 0, 0};

/// `color` as a pixel. It is opaque or transparent.
std::uint32_t pixel(RGBA color) {
  return std::uint32_t{color.alpha} << 24 | std::uint32_t{color.red} << 16 |
         std::uint32_t{color.green} << 8 | color.blue;
}

std::size_t whole(double length) { return static_cast<std::size_t>(length); }

bool overlap(const Rect& a, const Rect& b) { return !intersection(a, b).isEmpty(); }

}  // namespace

InkPicture InkPicture::cropped(const Pixels& painted, layout::Point origin, RGBA ground) {
  const auto isInk = [bare = pixel(ground)](std::uint32_t each) { return each != bare; };
  std::size_t left = painted.width, right = 0, top = painted.height, bottom = 0;
  for (std::size_t y = 0; y < painted.height; ++y) {
    const auto row = painted.row(y);
    const auto first = std::find_if(row.begin(), row.end(), isInk);
    if (first == row.end()) continue;
    const auto end = std::find_if(row.rbegin(), row.rend(), isInk).base();
    left = std::min(left, static_cast<std::size_t>(first - row.begin()));
    right = std::max(right, static_cast<std::size_t>(end - row.begin()));
    top = std::min(top, y);
    bottom = y + 1;
  }
  InkPicture ink;
  if (top >= bottom) return ink;
  ink.frame = {{double(left) - origin.x, double(top) - origin.y},
               {double(right - left), double(bottom - top)}};
  ink.pixels.reserve((right - left) * (bottom - top));
  for (std::size_t y = top; y < bottom; ++y) {
    const auto row = painted.row(y).subspan(left, right - left);
    ink.pixels.insert(ink.pixels.end(), row.begin(), row.end());
  }
  return ink;
}

std::optional<RGBA> KnownGround::under(const Rect& part) const {
  const auto top = std::find_if(layers_.rbegin(), layers_.rend(),
                                [&](const Layer& layer) { return overlap(layer.part, part); });
  if (top == layers_.rend()) return transparent;
  return top->part.contains(part) ? top->color : std::nullopt;
}

void KnownGround::filled(const Rect& part, RGBA color) {
  if (color.alpha != 255) return painted(part);
  layers_.push_back({part, color});
}

void KnownGround::inked(const Rect& part) {
  if (under(part) != transparent) return painted(part);
  inks_.push_back(part);
}

bool KnownGround::fill(const Rect& part, RGBA color) const {
  if (color.alpha != 255) return false;
  eachRow(layout::PixelGrid(1).round(part), [&](std::span<std::uint32_t> row, double, double) {
    std::ranges::fill(row, pixel(color));
  });
  return true;
}

/// Copies the picture where that gives what blending would. False if a text on a
/// transparent ground may overlap it: the two have to be blended.
bool KnownGround::copy(const InkPicture& picture, const Rect& to) const {
  if (std::ranges::any_of(inks_, [&](const Rect& ink) { return overlap(ink, to); })) return false;
  eachRow(to, [&](std::span<std::uint32_t> row, double left, double top) {
    const std::size_t first = whole(top) * whole(to.size.width) + whole(left);
    std::copy_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(first), row.size(),
                row.begin());
  });
  return true;
}

/// Calls `write` with each row of `part` that is not clipped, and where in `part` it begins.
template <class Write>
void KnownGround::eachRow(const Rect& part, Write write) const {
  const Rect seen = intersection(part, clip_);
  if (seen.isEmpty()) return;
  for (double y = seen.top(); y < seen.bottom(); ++y) {
    write(image_.row(whole(y)).subspan(whole(seen.left()), whole(seen.size.width)),
          seen.left() - part.left(), y - part.top());
  }
}

}  // namespace quorix::render
