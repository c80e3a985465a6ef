#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "tools/quorix/Arguments.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// What a command prints on the standard output, or why it did not get there.
using Outcome = std::variant<std::string, Failure>;

/// A command of the tool: what its help says, what its command line may hold, and what it does.
/// Help, the manual page and the shells' completions are made of these tables.
struct Command {
  std::string_view name;     ///< one word or two: "score", "strings check"
  std::string_view purpose;  ///< a line for the list of commands, and then what else to know
  std::span<const Option> options;
  Option operand;            ///< the one argument it takes besides options; without a name none
  std::string_view details;  ///< a paragraph below the options; may be empty
  std::string_view example;  ///< whole lines that work when pasted into a shell
  Outcome (*run)(const Arguments&);
};

}  // namespace quorix::tool
