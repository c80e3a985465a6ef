#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/foundation/StringFormat.h"

namespace quorix {

/// The text for `key` in the library bundle's string table for `locale`, which names the table's
/// folder as it is: "en-GB" is no "en". A locale without a folder reads English; a key without an
/// entry gives itself; without a bundle, or without even English, the text is empty. Looked up anew
/// at each call, so that an edited table shows at once. Any thread.
///
///     localized("widget-read-more", "es")  // "Más información"
std::string localized(std::string_view key, std::string_view locale);

/// The same text as a format for `arguments`, whose decimal separator is "." in every locale.
///
///     localized("widget-title-return-rate-low", "en", {12.0})
std::string localized(std::string_view key, std::string_view locale,
                      const std::vector<foundation::FormatArgument>& arguments);

}  // namespace quorix
