#pragma once

#include <span>
#include <string_view>

namespace quorix::tool {

/// An option of a command, or the one argument that it takes besides options.
struct Option {
  std::string_view name;  ///< "--width"; of an argument "TOKEN", or "[TOKEN]" if it may be left out
  std::string_view value;  ///< what help calls its value: "POINTS"; empty for a switch
  std::string_view help;   ///< with units and default; "{}" stands for the list of `names`
  std::span<const std::string_view> names = {};  ///< the only values, if there is a list of them
  bool required = false;
};

}  // namespace quorix::tool
