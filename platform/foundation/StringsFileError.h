#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/foundation/Error.h"

namespace quorix::foundation {

/// The error of a file whose `text` goes wrong at `offset`: "line 3: what".
Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what);

/// The error of a sound property list that is no table; `what` begins at `offset`.
Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what);

}  // namespace quorix::foundation
