#pragma once

#include <optional>
#include <string>

#include "platform/foundation/FormatConversion.h"

namespace quorix::foundation {

/// `number` as printf writes it for `conversion`, a number's or an integer's, without its width.
/// `precision` stands in for the conversion's own; nothing is the default one. A number beyond 64
/// bits shows as the nearest integer that there is. Always ".".
std::string formattedNumber(double number, const FormatConversion& conversion,
                            std::optional<int> precision);

/// Where zeros that fill a width go into `text`: behind its sign and "0x".
std::size_t endOfSign(std::string_view text);

/// The shortest decimal text that reads back as `number`: "35", "49.5", "1e+300".
std::string shortestNumber(double number);

}  // namespace quorix::foundation
