#pragma once

#include <vector>

#include "platform/foundation/Export.h"

namespace quorix::hosting {

/// Measures how fast a finger moves along one axis before it is lifted. A finger that rested before
/// that has speed 0.
class QUORIX_EXPORT VelocityTracker {
 public:
  /// The finger is at `position` (points) at the time `seconds`.
  void add(double position, double seconds);
  void reset() { samples_.clear(); }

  /// Points a second over the last tenth of a second before the latest sample.
  double velocity() const;

 private:
  struct Sample {
    double position;
    double seconds;
  };
  std::vector<Sample> samples_;  ///< of the last tenth of a second
};

}  // namespace quorix::hosting
