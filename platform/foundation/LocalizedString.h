#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorix::foundation {

/// Answers for a key of a string table; nothing when the table has no entry.
using StringTable = std::function<std::optional<std::string>(std::string_view key)>;

/// Sets the host application's main string table. Main thread, before the first view is shown.
void setMainStringTable(StringTable table);

/// The main table's entry for `key`, or `key` itself, with each "%@" (or "%2$@", by position)
/// replaced by its argument. An argument that the format asks for and nobody gave reads "(null)".
std::string localizedString(std::string_view key, const std::vector<std::string>& arguments);

}  // namespace quorix::foundation
