#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// The texts of a ".strings" file by key.
using StringTable = std::map<std::string, std::string, std::less<>>;

/// The codes of `readStringsFile`'s errors, whose domain is "StringsFile".
enum class StringsFileErrorCode : std::int64_t {
  malformed = 1,  ///< not a property list
  notATable = 2,  ///< a valid property list, but not texts by key
};

/// Reads the string table of a ".strings" file: entries `"key" = "text";` with or without quotes
/// and braces, `"key";` for a key that is its own text, or the XML property list form. UTF-8, with
/// or without byte order mark, or UTF-16 with one. If a key occurs twice, the last entry counts. A
/// second `;` after an entry (`"key" = "text";;`) ends a table without braces; the rest is ignored.
/// An error's description begins with the line: "line 3: ...". Any thread.
///
///     const auto table = readStringsFile("/* Title */ \"title\" = \"Caf\\U00e9\";");
QUORIX_EXPORT Result<StringTable> readStringsFile(std::string_view bytes);

/// The table in a property list of the old text form, with or without its outermost braces. `text`
/// is UTF-8. Errors are those of `readStringsFile`. Nested lists do not grow the call stack.
Result<StringTable> readTextPropertyList(std::string_view text);

// Makes the readers' errors, with the line of `offset` in `text`: "line 3: what".
Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what);
Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what);

}  // namespace quorix::foundation
