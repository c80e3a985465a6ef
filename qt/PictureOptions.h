#pragma once

#include "platform/hosting/StillScene.h"

namespace quorix::qt {

/// What a picture of a view is to look like.
using PictureOptions = hosting::StillOptions;

}  // namespace quorix::qt
