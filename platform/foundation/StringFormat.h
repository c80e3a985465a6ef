#pragma once

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

}  // namespace quorix::foundation
