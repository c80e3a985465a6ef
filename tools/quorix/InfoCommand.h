#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix info": shows the info widget in either form as a picture, a tree or words.
extern const Command infoCommand;

}  // namespace quorix::tool
