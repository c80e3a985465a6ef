#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/URLSession.h"

namespace quorix {

/// The texts of one language by section and key. Immutable and shared: a thousand widgets with the
/// built-in texts use one table. Any thread.
class TranslationTable {
 public:
  struct Entry {
    std::string_view section, key, text;
  };

  /// Copies `entries`. No two may have the same section and key.
  static std::shared_ptr<const TranslationTable> make(std::vector<Entry> entries);

  TranslationTable(const TranslationTable&) = delete;
  TranslationTable& operator=(const TranslationTable&) = delete;

  /// The text, or an empty one if there is none. Valid as long as the table.
  std::string_view text(std::string_view section, std::string_view key) const;

  /// All entries, ordered by section and key.
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  TranslationTable() = default;
  std::string texts_;  // what the entries view
  std::vector<Entry> entries_;
};

/// The built-in table for exactly `locale` ("en", "es"), otherwise the English one. Made once per
/// process. Any thread.
QUORIX_EXPORT std::shared_ptr<const TranslationTable> builtInTranslations(std::string_view locale);

using TranslationTableResult = foundation::Result<std::shared_ptr<const TranslationTable>>;

/// Reads `body`: a JSON object of sections, each an object of texts by key. Any other structure
/// fails with domain "Localization", code -2; text that is not JSON fails with the JSON reader's
/// error. Any thread.
QUORIX_EXPORT TranslationTableResult readTranslationTable(std::string_view body);

/// Reads the body of a response with any status. Returns a transport error unchanged. A response
/// without a body fails with domain "Localization", code -1. Any thread.
QUORIX_EXPORT TranslationTableResult readTranslationTable(const foundation::URLResponse& response);

}  // namespace quorix
