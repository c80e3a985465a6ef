#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/layout/Geometry.h"

namespace quorix::render {

inline constexpr int opaqueLevel = 8;
/// A picture's pixels as rectangles. The index is their opacity, from 0 to `opaqueLevel`.
using OpacityLevels = std::array<std::vector<layout::Rect>, opaqueLevel + 1>;

/// Rounds the upper corners of a picture of `width` and `height` pixels, with smooth edges. For a
/// painter that cannot cut along a curve.
inline OpacityLevels roundedTop(int width, int height, double radius) {
  // The opacity of a pixel, from the distance of its middle to the curve. Both count from the
  // corner.
  const auto levelAt = [radius](int column, int row) {
    const double distance =
        std::hypot(std::max(0.0, radius - column - 0.5), std::max(0.0, radius - row - 0.5));
    return std::lround(std::clamp(radius - distance + 0.5, 0.0, 1.0) * opaqueLevel);
  };
  OpacityLevels levels;
  const int rows = std::min(static_cast<int>(std::ceil(radius)), height);
  for (int row = 0; row < rows; ++row) {
    int column = 0;
    for (; column < width / 2 && levelAt(column, row) < opaqueLevel; ++column) {
      auto& level = levels[std::size_t(levelAt(column, row))];
      level.push_back({{double(column), double(row)}, {1, 1}});
      level.push_back({{double(width - 1 - column), double(row)}, {1, 1}});
    }
    levels[opaqueLevel].push_back({{double(column), double(row)}, {double(width - 2 * column), 1}});
  }
  levels[opaqueLevel].push_back({{0, double(rows)}, {double(width), double(height - rows)}});
  return levels;
}

}  // namespace quorix::render
