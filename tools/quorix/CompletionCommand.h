#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix completion": prints what makes a shell complete the tool's command lines.
extern const Command completionCommand;

}  // namespace quorix::tool
