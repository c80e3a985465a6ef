#include "QuorixWidgets/localization/ServiceAddresses.h"

namespace quorix {

std::string_view modulesServiceBaseURL() { return QUORIX_MODULES_URL; }
std::string_view widgetServiceBaseURL() { return QUORIX_WIDGET_URL; }

}  // namespace quorix
