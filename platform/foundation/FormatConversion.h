#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quorix::foundation {

/// One "%..." of a format text.
struct FormatConversion {
  /// What it shows: `none` is "%n", `percent` is "%%", `unknown` is no conversion or one cut off.
  enum class Kind : std::uint8_t { number, integer, text, character, none, percent, unknown };

  /// A width or precision: written out, or taken from an argument, or neither.
  struct Size {
    std::optional<int> value;             ///< from 0 to `largestSize`
    std::optional<std::size_t> argument;  ///< counted from 0
  };
  static constexpr int largestSize = 512;

  std::string_view source;  ///< its place in the format, from "%" to its letter
  Kind kind = Kind::unknown;
  char letter = '\0';
  std::size_t argument = 0;  ///< which it shows, counted from 0; of no meaning where it shows none

  Size width;
  Size precision;
  bool left = false;       ///< "-"
  bool plus = false;       ///< "+"
  bool blank = false;      ///< " "
  bool alternate = false;  ///< "#"
  bool zeros = false;      ///< "0"

  bool takesArgument() const { return kind != Kind::percent && kind != Kind::unknown; }
};

/// The conversions of `format` in order, "%%" and unknown ones among them. They view `format`.
///
///     conversions("%.0f%% of %@")  // "%.0f" shows argument 0, "%%", "%@" shows argument 1
std::vector<FormatConversion> conversions(std::string_view format);

}  // namespace quorix::foundation
