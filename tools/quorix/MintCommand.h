#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix mint": prints a demo token.
extern const Command mintCommand;

}  // namespace quorix::tool
