#include "platform/hosting/VelocityTracker.h"

namespace quorix::hosting {
namespace {

constexpr double window = 0.1;      // seconds
constexpr double shortest = 0.001;  // seconds; samples at one instant tell no speed

}  // namespace

void VelocityTracker::add(double position, double seconds) {
  std::erase_if(samples_, [&](const Sample& old) { return old.seconds < seconds - window; });
  samples_.push_back({position, seconds});
}

double VelocityTracker::velocity() const {
  if (samples_.empty()) return 0;
  const Sample& first = samples_.front();
  const Sample& last = samples_.back();
  const double elapsed = last.seconds - first.seconds;
  return elapsed < shortest ? 0 : (last.position - first.position) / elapsed;
}

}  // namespace quorix::hosting
