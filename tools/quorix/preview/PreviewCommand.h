#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix preview": a widget in a window that follows files.
extern const Command previewCommand;

}  // namespace quorix::tool
