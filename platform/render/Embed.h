#pragma once

#include "platform/foundation/Export.h"

namespace quorix::render {

/// Content that paints itself (a web page). The display list only leaves room for it: the surface
/// places it there, above the items before it and below those after it.
class QUORIX_EXPORT Embed {
 public:
  virtual ~Embed() = default;
};

}  // namespace quorix::render
