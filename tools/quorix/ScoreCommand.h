#pragma once

#include "tools/quorix/Command.h"

namespace quorix::tool {

/// "quorix score": shows the score widget of a token as a picture, a tree or words.
extern const Command scoreCommand;

}  // namespace quorix::tool
