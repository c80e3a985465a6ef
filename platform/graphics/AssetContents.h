#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/graphics/ColorSet.h"

namespace quorix::graphics {

/// The files that an image set names.
struct ImageSetFiles {
  std::string light;
  std::optional<std::string> dark;
  bool isTemplate = false;
};

// Readers of the `Contents.json` of each kind of asset folder. Entries for one device only or for
// high contrast are passed over; nothing for a text that is not such a file.
std::optional<ColorSet> parseColorSet(std::string_view json);
std::optional<ImageSetFiles> parseImageSet(std::string_view json);
std::optional<std::string> parseDataSet(std::string_view json);

/// Whether a folder's `Contents.json` makes its name part of the names inside it.
bool providesNamespace(std::string_view json);

}  // namespace quorix::graphics
