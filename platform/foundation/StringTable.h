#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"
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
/// is UTF-8. Nested lists do not grow the call stack.
Result<StringTable> readTextPropertyList(std::string_view text);

// Makes the readers' errors, with the line of `offset` in `text`: "line 3: what".
Error malformedStringsFile(std::string_view text, std::size_t offset, const std::string& what);
Error notAStringTable(std::string_view text, std::size_t offset, const std::string& what);

// Looking texts up in the tables of bundles.

/// The text for `key` in the "Localizable" string table at the root of `bundle`. Reads the table
/// again if it has changed. Returns the key itself if the bundle has no such entry or no readable
/// table. Any thread.
///
///     localizedString(*bundle->folder("en.lproj"), "greeting")
std::string localizedString(const Bundle& bundle, std::string_view key);

/// The text for `key` in the "Localizable" string tables of `bundle`, for a user who reads
/// `language` ("pt-BR"). Searches "pt-BR.lproj", "pt.lproj", "en.lproj", then the bundle's root;
/// the first table with an entry counts. Any thread.
std::optional<std::string> localizedEntry(const Bundle& bundle, std::string_view key,
                                          std::string_view language);

/// The entry for `key` in the host's main bundle in the user's `language`, or `key` itself without
/// one. Formats it with `arguments`. Any thread.
std::string localizedString(std::string_view key, const std::vector<std::string>& arguments,
                            std::string_view language);

/// The spoken text for an image of `bundle` that has a meaning but no label. Looks up the image's
/// name in the "Localizable" string table of its bundle, in the user's `language` or in English,
/// then in the host's main table. Without an entry, the name itself. Main thread.
std::string spokenName(const Bundle& bundle, const std::string& image, std::string_view language);

}  // namespace quorix::foundation
