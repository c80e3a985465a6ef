#pragma once

#include <span>
#include <string>
#include <variant>

namespace quorix::examples {

/// What the command line asks for.
struct ShopOptions {
  bool help = false;
  bool widgets = false;           ///< a Qt Widgets window beside the Qt Quick one
  bool pictures = false;          ///< write pictures instead of opening a window
  std::string outFolder = "out";  ///< where they go
  int language = 0;               ///< which of the shop's it starts in

  static const char* usage();

  /// The options among `arguments` (without the program's name), or one line that says what is
  /// wrong with them.
  static std::variant<ShopOptions, std::string> parse(std::span<char* const> arguments);
};

}  // namespace quorix::examples
