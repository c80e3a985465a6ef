#pragma once

#include "platform/foundation/Export.h"

namespace quorix::render {

/// Something that lives and paints itself (a web page), for which a scene only makes room: the
/// surface that shows the scene puts it there, above the items before it and below those after it.
class QUORIX_EXPORT Embed {
 public:
  virtual ~Embed() = default;
};

}  // namespace quorix::render
