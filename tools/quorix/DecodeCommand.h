#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix decode": prints the figures in a token, or the step at which it is refused.
extern const Command decodeCommand;

}  // namespace quorix::tool
