#pragma once

#include <string_view>

namespace quorix::tool {

/// An option of a command.
struct Option {
  std::string_view name;   ///< "--width"
  std::string_view value;  ///< what help calls its value: "POINTS"; empty for a switch
  std::string_view help;   ///< with units and default; further lines are indented below the first
};

}  // namespace quorix::tool
