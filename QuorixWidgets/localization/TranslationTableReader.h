#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/localization/TranslationTable.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/Result.h"
#include "platform/foundation/URLSession.h"

namespace quorix {

using TranslationTableResult = foundation::Result<std::shared_ptr<const TranslationTable>>;

/// The table that `body` spells: a JSON object of sections, each an object of keys with texts. Any
/// other shape is refused as a whole with domain "Localization", code -2; what is not JSON, with
/// the JSON reader's error. Any thread.
QUORIX_EXPORT TranslationTableResult readTranslationTable(std::string_view body);

/// The table in a response, whatever its status; a transport error as it is, and domain
/// "Localization", code -1, for a response without a body. Any thread.
QUORIX_EXPORT TranslationTableResult readTranslationTable(const foundation::URLResponse& response);

}  // namespace quorix
