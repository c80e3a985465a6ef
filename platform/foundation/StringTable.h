#pragma once

#include <functional>
#include <map>
#include <string>

namespace quorix::foundation {

/// Texts by key, as a string table's file holds them.
using StringTable = std::map<std::string, std::string, std::less<>>;

}  // namespace quorix::foundation
