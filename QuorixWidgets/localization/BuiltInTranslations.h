#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/localization/TranslationTable.h"
#include "platform/foundation/Export.h"

namespace quorix {

/// The built-in table of exactly `locale` ("en", "es"), or else the English one. Each is made once
/// per process. Any thread.
QUORIX_EXPORT std::shared_ptr<const TranslationTable> builtInTranslations(std::string_view locale);

}  // namespace quorix
