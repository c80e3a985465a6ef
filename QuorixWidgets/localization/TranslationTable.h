#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorix {

/// The texts of one language by section and key. Immutable and shared: a thousand widgets with the
/// built-in texts hold one table. Any thread.
class TranslationTable {
 public:
  struct Entry {
    std::string_view section, key, text;
    bool operator==(const Entry&) const = default;
  };

  /// A table with copies of `entries`, of which no two have the same section and key.
  static std::shared_ptr<const TranslationTable> make(std::vector<Entry> entries);

  TranslationTable(const TranslationTable&) = delete;
  TranslationTable& operator=(const TranslationTable&) = delete;

  /// The text, or an empty one when there is none; lives as long as the table.
  std::string_view text(std::string_view section, std::string_view key) const;

  /// All entries, ordered by section and key.
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  TranslationTable() = default;
  std::string texts_;  // what the entries view
  std::vector<Entry> entries_;
};

}  // namespace quorix
