#pragma once

#include <optional>
#include <string_view>

namespace quorix::graphics {

/// A width and height in points, both above 0.
struct SvgSize {
  double width;
  double height;
};

/// The natural size of an SVG file: its root's `width` and `height` (plain or "px"), or else the
/// size of its `viewBox`. Absent without such a root element or a usable size.
std::optional<SvgSize> readSvgSize(std::string_view svg);

}  // namespace quorix::graphics
