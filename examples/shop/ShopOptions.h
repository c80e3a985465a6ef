#pragma once

#include <span>
#include <string>
#include <variant>

namespace quorix::examples {

/// The options on the command line.
struct ShopOptions {
  bool help = false;
  bool widgets = false;           ///< also open a Qt Widgets window
  bool pictures = false;          ///< write pictures instead of opening a window
  std::string outFolder = "out";  ///< folder of the pictures
  int language = 0;               ///< the shop's language at the start

  static const char* usage();

  /// Parses `arguments` (without the program's name). On an error, returns one line with the
  /// reason.
  static std::variant<ShopOptions, std::string> parse(std::span<char* const> arguments);
};

}  // namespace quorix::examples
