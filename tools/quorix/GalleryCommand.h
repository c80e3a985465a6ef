#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

extern const Command galleryCommand;

}  // namespace quorix::tool
