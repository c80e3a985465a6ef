#include "platform/foundation/LocalizedString.h"

#include <utility>

#include "platform/foundation/ParsedFileCache.h"
#include "platform/foundation/StringFormat.h"
#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

StringLookup& mainTable() {
  static StringLookup table;
  return table;
}

std::shared_ptr<const StringTable> readTable(std::string_view bytes) {
  auto reading = readStringsFile(bytes);
  auto* table = std::get_if<StringTable>(&reading);
  return table == nullptr ? nullptr : std::make_shared<const StringTable>(std::move(*table));
}

}  // namespace

std::string localizedString(const Bundle& bundle, std::string_view key, std::string_view table) {
  // Never destroyed: a text may be asked for while the process ends.
  static auto& cache = *new ParsedFileCache<StringTable>(readTable);
  const auto file = bundle.data(std::string(table) + ".strings");
  const auto entries = file ? cache.read(*file) : nullptr;
  if (!entries) return std::string(key);
  const auto entry = entries->find(key);
  return entry == entries->end() ? std::string(key) : entry->second;
}

void setMainStringTable(StringLookup table) { mainTable() = std::move(table); }

std::string localizedString(std::string_view key, const std::vector<std::string>& arguments) {
  std::optional<std::string> entry;
  if (mainTable()) entry = mainTable()(key);
  return formatted(entry ? *entry : key, {arguments.begin(), arguments.end()});
}

}  // namespace quorix::foundation
