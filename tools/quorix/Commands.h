#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// Every command, in the order of help.
std::span<const Command* const> commands();

/// Their names.
std::vector<std::string_view> commandNames();

/// The command that `words` begin with; or the failure that names the nearest one.
std::variant<const Command*, Failure> findCommand(std::span<const std::string> words);

}  // namespace quorix::tool
