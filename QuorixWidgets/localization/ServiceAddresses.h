#pragma once

#include <string_view>

#include "platform/foundation/Export.h"

namespace quorix {

/// The addresses of the vendor's services. The build options QUORIX_MODULES_URL and
/// QUORIX_WIDGET_URL set them: https, without a trailing slash. Any thread.
QUORIX_EXPORT std::string_view modulesServiceBaseURL();
QUORIX_EXPORT std::string_view widgetServiceBaseURL();

}  // namespace quorix
