#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix texts": prints a built-in table of the score widget as a translations server sends it.
extern const Command textsCommand;

}  // namespace quorix::tool
