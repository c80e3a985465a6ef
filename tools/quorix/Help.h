#pragma once

#include <string>

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix help": prints the same as "quorix --help" or "quorix COMMAND --help".
extern const Command helpCommand;

inline constexpr std::string_view toolPurpose =
    "quorix shows the widgets without an app: what a shopper sees, hears and is charged. "
    "It works without a display and without a network.";
inline constexpr std::string_view exitStatus =
    "0 when all went well, 1 for input that was refused, 2 for a wrong command line.";

/// The text of "quorix --help".
std::string helpText();

/// The text of "quorix COMMAND --help".
std::string helpText(const Command& command);

/// "score TOKEN [options]".
std::string usage(const Command& command);

/// The help for `option`, in one paragraph.
std::string described(const Option& option);

}  // namespace quorix::tool
