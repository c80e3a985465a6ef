#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix overlay-url": prints the address of the page that a widget's overlay would load.
extern const Command overlayUrlCommand;

}  // namespace quorix::tool
