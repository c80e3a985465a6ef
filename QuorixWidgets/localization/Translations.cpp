#include "QuorixWidgets/localization/Translations.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>

#include "platform/foundation/JSON.h"

namespace quorix {

using foundation::Error;
using foundation::JSONValue;

namespace {

auto place(const TranslationTable::Entry& entry) { return std::tie(entry.section, entry.key); }

bool before(const TranslationTable::Entry& a, const TranslationTable::Entry& b) {
  return place(a) < place(b);
}

/// Names the faulty part for the author of the table.
Error wrongShape(std::string_view part, std::string_view fault) {
  return {"Localization", -2, std::string(part) + " is not " + std::string(fault)};
}

}  // namespace

std::shared_ptr<const TranslationTable> builtInTranslations(std::string_view locale) {
  static const auto english = TranslationTable::make({
      {"returns", "title", "Your return fee"},
      {"returns", "fee", "Return fee"},
      {"returns", "rate", "Return rate"},
      {"returns", "disclaimer",
       "Your return fee is based on your personal return rate. Fewer returns lead to lower fees "
       "benefiting both you and the environment."},
      {"labels", "discounted", "Discounted"},
      {"labels", "original", "Original"},
      {"labels", "hint", "Tap to learn more"},
      {"labels", "quorix_logo", "Quorix logo"},
      {"actions", "close", "Close"},
  });
  static const auto spanish = TranslationTable::make({
      {"returns", "title", "Tu tarifa de devolución"},
      {"returns", "fee", "Tarifa de devolución"},
      {"returns", "rate", "Tasa de devolución"},
      {"returns", "disclaimer",
       "Su tarifa de devolución se basa en su tasa de devolución personal. Menos devoluciones se "
       "traducen en tarifas más bajas, lo que beneficia tanto a usted como al medio ambiente."},
      {"labels", "discounted", "Descontado"},
      {"labels", "original", "Original"},
      {"labels", "hint", "Toque para saber más"},
      {"labels", "quorix_logo", "Logo de Quorix"},
      {"actions", "close", "Cerrar"},
  });
  return locale == "es" ? spanish : english;
}

std::shared_ptr<const TranslationTable> TranslationTable::make(std::vector<Entry> entries) {
  std::shared_ptr<TranslationTable> table(new TranslationTable);
  std::sort(entries.begin(), entries.end(), before);
  std::size_t size = 0;
  for (const Entry& entry : entries) {
    size += entry.section.size() + entry.key.size() + entry.text.size();
  }
  table->texts_.reserve(size);  // appending must not move what the entries already view
  const auto keep = [&](std::string_view& text) {
    const std::size_t start = table->texts_.size();
    table->texts_ += text;
    text = std::string_view(table->texts_).substr(start);
  };
  for (Entry& entry : entries) {
    keep(entry.section);
    keep(entry.key);
    keep(entry.text);
  }
  entries.shrink_to_fit();
  table->entries_ = std::move(entries);
  return table;
}

std::string_view TranslationTable::text(std::string_view section, std::string_view key) const {
  const Entry sought{section, key, {}};
  const auto found = std::lower_bound(entries_.begin(), entries_.end(), sought, before);
  return found != entries_.end() && place(*found) == place(sought) ? found->text
                                                                   : std::string_view{};
}

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
