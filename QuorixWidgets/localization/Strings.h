#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/Export.h"
#include "platform/foundation/StringFormat.h"
#include "platform/foundation/StringTable.h"

namespace quorix {

/// The text for `key` in the library bundle's string table for `locale`. The locale is the name of
/// the table's folder: "en-GB" does not find "en". Without a folder for the locale, English is
/// used. A missing entry returns the key. Without a bundle, or without English, the text is empty.
/// Looked up at each call, so an edited table takes effect at once. Any thread.
///
///     localized("widget-read-more", "es")  // "Más información"
std::string localized(std::string_view key, std::string_view locale);

/// Uses that text as a format for `arguments`, with "." as decimal separator in every locale.
///
///     localized("widget-title-return-rate-low", "en", {12.0})
std::string localized(std::string_view key, std::string_view locale,
                      const std::vector<foundation::FormatArgument>& arguments);

/// A mistake for the translator of a "Localizable" table.
struct StringTableProblem {
  std::string key;
  std::string what;  ///< "is missing"
};

/// All mistakes in `table`: missing entries, unused entries, formats that do not show exactly their
/// argument, and a title that lacks its figure, has text after a second one, or consists only of
/// it. Any thread.
QUORIX_EXPORT std::vector<StringTableProblem> problems(const foundation::StringTable& table);

}  // namespace quorix
