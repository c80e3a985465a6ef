#pragma once

#include <memory>
#include <string_view>

#include "QuorixWidgets/localization/TranslationTable.h"

namespace quorix {

/// The built-in table of exactly `locale` ("en", "es"), or else the English one. Each is made once
/// per process. Any thread.
std::shared_ptr<const TranslationTable> builtInTranslations(std::string_view locale);

}  // namespace quorix
