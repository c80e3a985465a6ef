#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix strings check": finds what a translator overlooked in the "Localizable" tables.
extern const Command stringsCheckCommand;

}  // namespace quorix::tool
