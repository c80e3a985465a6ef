#include <algorithm>
#include <cstdint>

#include "QuorixWidgets/localization/Translations.h"
#include "fuzz/Expect.h"

using namespace quorix;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view body(reinterpret_cast<const char*>(bytes), size);
  const auto result = readTranslationTable(body);
  if (const auto* error = std::get_if<foundation::Error>(&result)) {
    expect(error->domain == "JSON" || (error->domain == "Localization" && error->code == -2),
           "every refusal has its domain and code");
    return 0;
  }
  const TranslationTable& table = *std::get<std::shared_ptr<const TranslationTable>>(result);
  for (const auto& entry : table.entries()) {
    expect(table.text(entry.section, entry.key) == entry.text, "every entry is found");
  }
  expect(std::adjacent_find(table.entries().begin(), table.entries().end(),
                            [](const auto& a, const auto& b) {
                              return a.section == b.section && a.key == b.key;
                            }) == table.entries().end(),
         "no entry stands twice");
  return 0;
}
