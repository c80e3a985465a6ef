#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "tools/quorix/Arguments.h"
#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// The text for the standard output, or the failure.
using Outcome = std::variant<std::string, Failure>;

/// A command of the tool: its help, its command line and its function. Help, the manual page and
/// the shells' completions are made from these tables.
struct Command {
  std::string_view name;     ///< one word or two: "score", "strings check"
  std::string_view purpose;  ///< a line for the list of commands, then further sentences
  std::span<const Option> options;
  Option operand;            ///< the argument besides options; no name: none
  std::string_view details;  ///< a paragraph below the options; may be empty
  std::string_view example;  ///< whole lines that can be pasted into a shell
  Outcome (*run)(const Arguments&);
};

}  // namespace quorix::tool
