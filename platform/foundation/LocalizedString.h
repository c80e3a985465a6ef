#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"

namespace quorix::foundation {

/// The text for `key` in the string table "table.strings" of `bundle`. Reads the table again if it
/// has changed. Returns the key itself if the bundle has no such entry or no readable table. Any
/// thread.
///
///     localizedString(*bundle->folder("en.lproj"), "greeting", "Localizable")
std::string localizedString(const Bundle& bundle, std::string_view key, std::string_view table);

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
