#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorix::foundation {

/// The signed 64-bit integer that `number`, a well-formed JSON number, stands for exactly, or
/// nothing. Works on the digits: a double would already have lost what lies beyond 2^53.
std::optional<std::int64_t> exactInteger(std::string_view number);

}  // namespace quorix::foundation
