#pragma once

#include <span>
#include <string>

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// What "quorix --help" prints.
std::string helpText(std::span<const Command* const> commands);

/// What "quorix COMMAND --help" prints.
std::string helpText(const Command& command);

}  // namespace quorix::tool
