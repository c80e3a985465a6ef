#include "platform/foundation/LocalizedString.h"

#include <utility>

#include "platform/foundation/StringFormat.h"
#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

StringLookup& mainTable() {
  static StringLookup table;
  return table;
}

}  // namespace

std::string localizedString(const Bundle& bundle, std::string_view key, std::string_view table) {
  const auto file = bundle.data(std::string(table) + ".strings");
  if (file) {
    const auto reading = readStringsFile(*file);
    if (const auto* entries = std::get_if<StringTable>(&reading)) {
      if (const auto entry = entries->find(key); entry != entries->end()) return entry->second;
    }
  }
  return std::string(key);
}

void setMainStringTable(StringLookup table) { mainTable() = std::move(table); }

std::string localizedString(std::string_view key, const std::vector<std::string>& arguments) {
  std::optional<std::string> entry;
  if (mainTable()) entry = mainTable()(key);
  return formatted(entry ? *entry : key, {arguments.begin(), arguments.end()});
}

}  // namespace quorix::foundation
