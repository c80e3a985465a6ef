#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/graphics/RGBA.h"

namespace quorix::graphics {

/// The files that an image set names.
struct ImageSetFiles {
  std::string light;
  std::optional<std::string> dark;
  bool isTemplate = false;
};

// Readers of the `Contents.json` of each kind of asset folder. They skip entries for one device
// only and for high contrast. Absent for any other text.

/// Reads color components in any spelling that design tools write: "0xFF", "255" or "1.000". Alpha
/// is opaque if empty, and "1" is the fraction 1. Clamps fractions to 0 to 1, and colors outside
/// sRGB channel by channel.
std::optional<ColorSet> parseColorSet(std::string_view json);
std::optional<ImageSetFiles> parseImageSet(std::string_view json);
std::optional<std::string> parseDataSet(std::string_view json);

/// Whether a folder's `Contents.json` makes its name part of the names inside it.
bool providesNamespace(std::string_view json);

/// A width and height in points, both above 0.
struct SvgSize {
  double width;
  double height;
};

/// The natural size of an SVG file: its root's `width` and `height` (plain or "px"), or else the
/// size of its `viewBox`. Absent without such a root element or a usable size.
std::optional<SvgSize> readSvgSize(std::string_view svg);

}  // namespace quorix::graphics
