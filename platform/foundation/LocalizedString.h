#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Bundle.h"

namespace quorix::foundation {

/// The text for `key` in the string table "table.strings" of `bundle`, as it is at the moment of
/// the call; the key itself where the bundle has no such entry or no table that can be read. Any
/// thread.
///
///     localizedString(*bundle->folder("en.lproj"), "greeting", "Localizable")
std::string localizedString(const Bundle& bundle, std::string_view key, std::string_view table);

/// Answers for a key of the main string table; nothing when the table has no entry.
using StringLookup = std::function<std::optional<std::string>(std::string_view key)>;

/// Sets the host application's main string table. Main thread, before the first view is shown.
void setMainStringTable(StringLookup table);

/// The main table's entry for `key`, or `key` itself, formatted with `arguments`. Main thread.
std::string localizedString(std::string_view key, const std::vector<std::string>& arguments);

}  // namespace quorix::foundation
