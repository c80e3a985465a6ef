#pragma once

#include <string_view>

#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {

/// The table in a property list of the old text form, with or without its outermost braces. `text`
/// is UTF-8. Errors are those of `readStringsFile`. Nested lists do not grow the call stack.
Result<StringTable> readTextPropertyList(std::string_view text);

}  // namespace quorix::foundation
