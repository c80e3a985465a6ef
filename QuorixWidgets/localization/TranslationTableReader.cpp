#include "QuorixWidgets/localization/TranslationTableReader.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/foundation/JSON.h"

namespace quorix {

using foundation::Error;
using foundation::JSONValue;

namespace {

/// Says which part of the table it is, so that whoever wrote the table finds it.
Error wrongShape(std::string_view part, std::string_view fault) {
  return {"Localization", -2, std::string(part) + " is not " + std::string(fault)};
}

}  // namespace

TranslationTableResult readTranslationTable(std::string_view body) {
  foundation::JSONDocument document;
  auto result = document.parse(body);
  if (auto* error = std::get_if<Error>(&result)) return std::move(*error);

  const JSONValue top = std::get<JSONValue>(result);
  if (top.kind() != JSONValue::Kind::object)
    return wrongShape("the table", "an object of sections");
  std::vector<TranslationTable::Entry> entries;
  for (const auto& [section, keys] : top.members()) {
    const std::string path = '"' + std::string(section) + '"';
    if (keys.kind() != JSONValue::Kind::object) return wrongShape(path, "an object of texts");
    for (const auto& [key, value] : keys.members()) {
      const auto text = value.string();
      if (!text) return wrongShape(path + ".\"" + std::string(key) + '"', "a text");
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
