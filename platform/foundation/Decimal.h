#pragma once

#include <optional>
#include <string_view>

namespace quorix::foundation {

/// The number that `text` spells in plain decimal notation ("12", "-0.5", "1.000"), whatever the
/// process's locale; nothing for any other text, an exponent, or more than 15 digits.
std::optional<double> parseDecimal(std::string_view text);

}  // namespace quorix::foundation
