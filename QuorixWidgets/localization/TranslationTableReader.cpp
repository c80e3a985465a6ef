#include "QuorixWidgets/localization/TranslationTableReader.h"

#include <utility>
#include <vector>

#include "platform/foundation/JSON.h"

namespace quorix {

using foundation::Error;
using foundation::JSONValue;

TranslationTableResult readTranslationTable(std::string_view body) {
  const Error wrongShape{"Localization", -2, "not a table of sections, keys and texts"};
  foundation::JSONDocument document;
  auto result = document.parse(body);
  if (auto* error = std::get_if<Error>(&result)) return std::move(*error);

  const JSONValue top = std::get<JSONValue>(result);
  if (top.kind() != JSONValue::Kind::object) return wrongShape;
  std::vector<TranslationTable::Entry> entries;
  for (const auto& [section, keys] : top.members()) {
    if (keys.kind() != JSONValue::Kind::object) return wrongShape;
    for (const auto& [key, value] : keys.members()) {
      const auto text = value.string();
      if (!text) return wrongShape;
      entries.push_back({section, key, *text});
    }
  }
  return TranslationTable::make(std::move(entries));
}

TranslationTableResult readTranslationTable(const foundation::URLResponse& response) {
  if (response.error) return *response.error;
  if (!response.body) return Error{"Localization", -1, "the response has no body"};
  return readTranslationTable(*response.body);
}

}  // namespace quorix
