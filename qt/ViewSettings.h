#pragma once

#include "platform/hosting/Settings.h"

namespace quorix::qt {

using hosting::ViewSettings;

}  // namespace quorix::qt
