#include "platform/foundation/LocalizedString.h"

#include <utility>

#include "platform/foundation/Cache.h"
#include "platform/foundation/Runtime.h"
#include "platform/foundation/StringFormat.h"
#include "platform/foundation/StringsFile.h"

namespace quorix::foundation {
namespace {

std::shared_ptr<const StringTable> readTable(std::string_view bytes) {
  auto reading = readStringsFile(bytes);
  auto* table = std::get_if<StringTable>(&reading);
  return table == nullptr ? nullptr : std::make_shared<const StringTable>(std::move(*table));
}

}  // namespace

struct StringTables : ParsedFileCache<StringTable> {
  StringTables() : ParsedFileCache(readTable) {}
};

namespace {

/// The entry for `key` in the table at `path` of `bundle`.
std::optional<std::string> entryIn(const Bundle& bundle, const std::string& path,
                                   std::string_view key) {
  const auto file = bundle.data(path);
  const auto entries = file ? Runtime::the<StringTables>().read(*file) : nullptr;
  if (!entries) return std::nullopt;
  const auto entry = entries->find(key);
  return entry == entries->end() ? std::nullopt : std::optional(entry->second);
}

}  // namespace

std::string localizedString(const Bundle& bundle, std::string_view key, std::string_view table) {
  return entryIn(bundle, std::string(table) + ".strings", key).value_or(std::string(key));
}

std::optional<std::string> localizedEntry(const Bundle& bundle, std::string_view key,
                                          std::string_view language) {
  const std::string_view withoutRegion = language.substr(0, language.find_first_of("-_"));
  for (const std::string_view folder : {language, withoutRegion, std::string_view("en")}) {
    if (folder.empty()) continue;
    if (auto entry = entryIn(bundle, std::string(folder) + ".lproj/Localizable.strings", key)) {
      return entry;
    }
  }
  return entryIn(bundle, "Localizable.strings", key);
}

std::string localizedString(std::string_view key, const std::vector<std::string>& arguments,
                            std::string_view language) {
  std::optional<std::string> entry;
  if (Bundle::hasMain()) entry = localizedEntry(*Bundle::main(), key, language);
  return formatted(entry ? *entry : key, {arguments.begin(), arguments.end()});
}

std::string spokenName(const Bundle& bundle, const std::string& image, std::string_view language) {
  const auto name = localizedEntry(bundle, image, language);
  return name ? *name : localizedString(image, {}, language);
}

}  // namespace quorix::foundation
