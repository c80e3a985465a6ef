#pragma once

#include "platform/layout/Geometry.h"

namespace quorix::layout {

/// Where an extent of `inner` starts inside one of `outer` when aligned.
double alignedOffset(HorizontalAlignment alignment, double outer, double inner);
double alignedOffset(VerticalAlignment alignment, double outer, double inner);
Point alignedOffset(Alignment alignment, Size outer, Size inner);

}  // namespace quorix::layout
