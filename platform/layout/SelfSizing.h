#pragma once

#include "platform/foundation/Export.h"
#include "platform/layout/Geometry.h"
#include "platform/text/TextEngine.h"

namespace quorix::layout {

/// Content that knows its own rules of size. Main thread.
class QUORIX_EXPORT SelfSizing {
 public:
  virtual ~SelfSizing() = default;
  /// The size that it chooses when offered `proposal`. Points.
  virtual Size sizeThatFits(ProposedSize proposal, text::TextEngine& engine, double scale) = 0;
};

}  // namespace quorix::layout
