#pragma once

#include <cstdint>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/Result.h"
#include "platform/foundation/StringTable.h"

namespace quorix::foundation {

/// The codes of `readStringsFile`'s errors, whose domain is "StringsFile".
enum class StringsFileErrorCode : std::int64_t {
  malformed = 1,  ///< neither a string table nor another property list
  notATable = 2,  ///< a sound property list that is something else than texts by key
};

/// The string table that the bytes of a ".strings" file spell: entries `"key" = "text";` with or
/// without quotes and braces, `"key";` for a key that is its own text, or the XML property list
/// form. UTF-8, with or without byte order mark, or UTF-16 with one. Of two entries with one key
/// the last counts. An error's description begins with the line: "line 3: ...". Any thread.
///
///     const auto table = readStringsFile("/* Title */ \"title\" = \"Caf\\U00e9\";");
QUORIX_EXPORT Result<StringTable> readStringsFile(std::string_view bytes);

}  // namespace quorix::foundation
