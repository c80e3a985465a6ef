#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"

namespace quorix::foundation {

/// The texts of a ".strings" file by key.
using StringTable = std::map<std::string, std::string, std::less<>>;

/// Reads the string table of a ".strings" file: entries `"key" = "text";` with or without quotes
/// and braces, `"key";` for a key that is its own text, or the XML property list form. UTF-8, with
/// or without byte order mark, or UTF-16 with one. If a key occurs twice, the last entry counts. A
/// second `;` after an entry (`"key" = "text";;`) ends a table without braces; the rest is ignored.
/// An error's description begins with the line: "line 3: ...". Values that are no texts are errors.
/// Any thread.
///
///     const auto table = readStringsFile("/* Title */ \"title\" = \"Caf\\U00e9\";");
QUORIX_EXPORT Result<StringTable> readStringsFile(std::string_view bytes);

/// The table in a property list of the old text form, with or without its outermost braces. `text`
/// is UTF-8.
Result<StringTable> readTextPropertyList(std::string_view text);

/// The readers' error, with the line of `offset` in `text`: "line 3: what".
Error stringsFileError(std::string_view text, std::size_t offset, const std::string& what);

}  // namespace quorix::foundation
