#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "tools/quorix/Arguments.h"
#include "tools/quorix/Failure.h"
#include "tools/quorix/Option.h"

namespace quorix::tool {

/// What a command prints on the standard output, or why it did not get there.
using Outcome = std::variant<std::string, Failure>;

/// A command of the tool: what its help says, what its command line may hold, and what it does.
struct Command {
  std::string_view name;      ///< one word or two: "score", "strings check"
  std::string_view synopsis;  ///< what follows the name
  std::string_view purpose;   ///< two lines, the first of which serves in the list of commands
  std::span<const Option> options;
  std::string_view operand;  ///< the one argument it takes besides options: "TOKEN", "[FOLDER]"
                             ///< where it may be left out, empty for none
  std::string_view details;  ///< whole lines below the options; may be empty
  std::string_view example;  ///< whole lines that work when pasted into a shell
  Outcome (*run)(const Arguments&);
};

}  // namespace quorix::tool
