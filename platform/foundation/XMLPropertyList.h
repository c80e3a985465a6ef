#pragma once

#include <string_view>

#include "platform/foundation/Result.h"
#include "platform/foundation/StringTable.h"

namespace quorix::foundation {

/// The table in an XML property list, `text` in UTF-8; errors as `readStringsFile` has them.
Result<StringTable> readXMLPropertyList(std::string_view text);

}  // namespace quorix::foundation
