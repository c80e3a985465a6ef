#pragma once

#include <string>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// The bytes of the file at `path`, or a failure that names it and says what is wrong.
std::variant<std::string, Failure> readInputFile(const std::string& path);

}  // namespace quorix::tool
