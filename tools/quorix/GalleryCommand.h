#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix gallery": shows the widgets on every screen, on one page or in one picture.
extern const Command galleryCommand;

}  // namespace quorix::tool
