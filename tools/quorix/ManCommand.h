#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix man": prints the manual page.
extern const Command manCommand;

}  // namespace quorix::tool
