#include "platform/foundation/StringFormat.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "platform/foundation/FormatConversion.h"
#include "platform/foundation/FormattedNumber.h"

namespace quorix::foundation {
namespace {

using Kind = FormatConversion::Kind;
using Arguments = std::vector<FormatArgument>;

/// The number of characters that a width or precision asks for, with its sign where an argument
/// gave it; nothing without one, or where that argument is no number.
std::optional<int> sizeOf(const FormatConversion::Size& size, const Arguments& arguments) {
  if (!size.argument) return size.value;
  if (*size.argument >= arguments.size()) return std::nullopt;
  const auto* number = std::get_if<double>(&arguments[*size.argument]);
  if (number == nullptr || std::isnan(*number)) return std::nullopt;
  const double largest = FormatConversion::largestSize;
  return static_cast<int>(std::clamp(*number, -largest, largest));
}

void fill(std::string& text, int width, const FormatConversion& conversion, bool zeros) {
  const bool left = conversion.left || width < 0;
  const auto wanted = static_cast<std::size_t>(std::abs(width));
  if (text.size() >= wanted) return;
  const std::size_t missing = wanted - text.size();
  if (left) {
    text.append(missing, ' ');
  } else if (zeros) {
    text.insert(endOfSign(text), missing, '0');
  } else {
    text.insert(0, missing, ' ');
  }
}

std::string numberText(double number, const FormatConversion& conversion,
                       const Arguments& arguments) {
  auto precision = sizeOf(conversion.precision, arguments);
  if (precision && *precision < 0) precision.reset();
  std::string text = formattedNumber(number, conversion, precision);
  const bool takesZeros =
      conversion.kind == Kind::number ? std::isfinite(number) : !precision.has_value();
  fill(text, sizeOf(conversion.width, arguments).value_or(0), conversion,
       conversion.zeros && takesZeros);
  return text;
}

std::string shown(const FormatConversion& conversion, const Arguments& arguments) {
  if (conversion.kind == Kind::percent) return "%";
  if (!conversion.takesArgument() || conversion.kind == Kind::none) return {};
  if (conversion.argument >= arguments.size()) return "(null)";
  const FormatArgument& argument = arguments[conversion.argument];
  if (const auto* text = std::get_if<std::string>(&argument)) return *text;
  const double number = std::get<double>(argument);
  const bool fits = conversion.kind == Kind::number || conversion.kind == Kind::integer;
  return fits ? numberText(number, conversion, arguments) : shortestNumber(number);
}

}  // namespace

std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments) {
  std::string text;
  std::size_t at = 0;
  for (const FormatConversion& conversion : conversions(format)) {
    const auto start = static_cast<std::size_t>(conversion.source.data() - format.data());
    text.append(format, at, start - at);
    text += shown(conversion, arguments);
    at = start + conversion.source.size();
  }
  return text.append(format, at);
}

}  // namespace quorix::foundation
