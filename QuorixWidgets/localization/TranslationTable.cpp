#include "QuorixWidgets/localization/TranslationTable.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace quorix {
namespace {

auto place(const TranslationTable::Entry& entry) { return std::tie(entry.section, entry.key); }

bool before(const TranslationTable::Entry& a, const TranslationTable::Entry& b) {
  return place(a) < place(b);
}

}  // namespace

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

}  // namespace quorix
