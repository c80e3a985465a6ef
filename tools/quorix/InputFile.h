#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// Bytes; far more than any token or table needs.
inline constexpr std::size_t largestInput = 64'000'000;

/// The bytes of the file at `path`, or a failure that names it and says what is wrong.
std::variant<std::string, Failure> readInputFile(const std::string& path);

}  // namespace quorix::tool
