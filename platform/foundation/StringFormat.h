#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quorix::foundation {

/// An argument of a format: a number, or a text in UTF-8.
using FormatArgument = std::variant<double, std::string>;

/// Replaces the conversions of `format` by `arguments`, as the platform's printf does:
///
///  - "%@" shows a text, and ignores width and precision;
///  - "%f %F %e %E %g %G %a %A" show a number with flags, width and precision, "%d %i %u %o %x %X"
///    (and their capitals) its whole part; the decimal separator is always ".";
///  - "%1$@" names its argument, "*" takes a width or precision from one, "%%" is a percent sign.
///
/// Safe for any format. If a conversion does not fit its argument, it shows the argument plainly: a
/// text unchanged, a number in its shortest decimal form. Without an argument it shows "(null)".
/// "%n" and invalid conversions are dropped. Widths and precisions above 512 count as 512. Any
/// thread, any C locale.
///
///     formatted("Top %.0f%% of %@", {12.4, "shoppers"})  // "Top 12% of shoppers"
std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments);

/// One "%..." of a format text.
struct FormatConversion {
  /// What the conversion shows. `none` is "%n", `percent` is "%%", `unknown` is invalid or cut off.
  enum class Kind : std::uint8_t { number, integer, text, character, none, percent, unknown };

  /// A width or precision: a number, or the index of an argument, or neither.
  struct Size {
    std::optional<int> value;             ///< from 0 to `largestSize`
    std::optional<std::size_t> argument;  ///< counted from 0
  };
  static constexpr int largestSize = 512;

  std::string_view source;  ///< the part of the format from "%" to its letter
  Kind kind = Kind::unknown;
  char letter = '\0';
  std::size_t argument = 0;  ///< index of the argument, counted from 0; unused without one

  std::string_view flags;  ///< any of "-+ #0'"
  Size width;
  Size precision;

  bool takesArgument() const { return kind != Kind::percent && kind != Kind::unknown; }
};

/// The conversions of `format` in order, "%%" and unknown ones included. They view `format`.
///
///     conversions("%.0f%% of %@")  // "%.0f" shows argument 0, "%%", "%@" shows argument 1
std::vector<FormatConversion> conversions(std::string_view format);

}  // namespace quorix::foundation
