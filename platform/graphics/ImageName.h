#pragma once

#include <string>
#include <string_view>

#include "platform/foundation/Bundle.h"

namespace quorix::graphics {

/// What assistive technology calls an image of `bundle` that stands for something and that nobody
/// named: its own name as a key of the "Localizable" string table in its bundle, in the user's
/// `language` or else in English; then as a key of the host's main table; then as it is. Main
/// thread.
std::string spokenName(const foundation::Bundle& bundle, const std::string& image,
                       std::string_view language);

}  // namespace quorix::graphics
