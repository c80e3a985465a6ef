#pragma once

#include <string_view>

#include "platform/foundation/Result.h"
#include "platform/foundation/StringTable.h"

namespace quorix::foundation {

/// The table in a property list of the old text form, `text` in UTF-8, its outermost braces there
/// or not; errors as `readStringsFile` has them. However deep lists stand in each other, the call
/// stack does not grow.
Result<StringTable> readTextPropertyList(std::string_view text);

}  // namespace quorix::foundation
