#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorix::foundation {

// Numbers as text, independent of the process's locale. Any thread.

/// The finite number that `text` spells in decimal notation ("12", "-0.5", "1e-3"). Absent for any
/// other text.
std::optional<double> parseNumber(std::string_view text);

/// The signed 64-bit integer that `number`, a well-formed JSON number, equals exactly. Works on the
/// digits, because a double loses integers beyond 2^53.
std::optional<std::int64_t> exactInteger(std::string_view number);

/// The double nearest to `text`, a JSON number with an exponent of any length ("1e-000001").
/// Absent for a number without an exponent, for any other text, and beyond the double range.
std::optional<double> numberWithExponent(std::string_view text);

/// The shortest decimal text that reads back as `number`: "35", "49.5", "1e+300".
std::string shortestNumber(double number);

}  // namespace quorix::foundation
