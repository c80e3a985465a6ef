#pragma once

#include <vector>

namespace quorix::hosting {

/// Measures how fast a finger moves along one axis before it is lifted. A finger that rested before
/// that has speed 0.
class VelocityTracker {
 public:
  /// The finger is at `position` (points) at the time `seconds`.
  void add(double position, double seconds) {
    std::erase_if(samples_, [&](const Sample& old) { return old.seconds < seconds - kWindow; });
    samples_.push_back({position, seconds});
  }
  void reset() { samples_.clear(); }

  /// Points a second over the last tenth of a second before the latest sample.
  double velocity() const {
    if (samples_.empty()) return 0;
    const Sample &first = samples_.front(), &last = samples_.back();
    const double elapsed = last.seconds - first.seconds;
    return elapsed < kShortest ? 0 : (last.position - first.position) / elapsed;
  }

 private:
  static constexpr double kWindow = 0.1;      // seconds
  static constexpr double kShortest = 0.001;  // seconds; samples at one instant tell no speed

  struct Sample {
    double position;
    double seconds;
  };
  std::vector<Sample> samples_;  ///< of the last tenth of a second
};

}  // namespace quorix::hosting
