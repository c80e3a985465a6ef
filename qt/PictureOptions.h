#pragma once

#include <optional>

#include "platform/graphics/RGBA.h"
#include "platform/hosting/StillScene.h"

namespace quorix::qt {

/// What a picture of a view is to look like. A plain value; any thread.
struct PictureOptions : hosting::StillOptions {
  /// Behind the view. Without it white in the light appearance and black in the dark one.
  std::optional<graphics::RGBA> background;
};

}  // namespace quorix::qt
