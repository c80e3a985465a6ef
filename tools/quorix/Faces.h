#pragma once

#include <string>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// The name to draw with for `nameOrFile`: the name of a face that is there, or a font file, whose
/// face is registered. Needs an application object; main thread.
std::variant<std::string, Failure> usableFace(const std::string& nameOrFile);

}  // namespace quorix::tool
