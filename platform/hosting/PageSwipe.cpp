#include "platform/hosting/PageSwipe.h"

#include <algorithm>
#include <cmath>

namespace quorix::hosting {
namespace {

// Points.
constexpr double edge = 20;            ///< how close to the side a finger must start
constexpr double slop = 10;            ///< movement after which the direction is certain
constexpr double fingerDistance = 60;  ///< length of a swipe that counts
constexpr double trackpadDistance = 80;

/// Highest ratio of vertical to sideways movement on a trackpad. A steeper movement is a vertical
/// scroll.
constexpr double steepest = 0.5;

}  // namespace

std::optional<EdgeSwipe::Swipe> EdgeSwipe::follow(const TouchEvent& event) {
  if (event.phase == PointerEvent::Phase::pressed) {
    finger_.reset();
    if (event.point.x < edge) finger_ = {event.point, SwipeDirection::right};
    if (event.point.x > event.pageWidth - edge) finger_ = {event.point, SwipeDirection::left};
  }
  if (event.fingers != 1) finger_.reset();
  if (!finger_) return std::nullopt;
  const double right = event.point.x - finger_->start.x;
  const double inward = finger_->direction == SwipeDirection::right ? right : -right;
  const double across = std::abs(event.point.y - finger_->start.y);
  if (!finger_->swipes) {
    if (std::max(std::abs(inward), across) < slop) return std::nullopt;
    if (inward <= across) {
      finger_.reset();
      return std::nullopt;
    }
    finger_->swipes = true;
  }
  return Swipe{finger_->direction, inward >= fingerDistance};
}

std::optional<SwipeDirection> TrackpadSwipe::follow(const TrackpadEvent& event) {
  const bool begins = event.begins || (event.byFingers && !moves_);
  moves_ = event.byFingers;
  if (begins) {
    spent_ = false;
    began_ = event.time;
    way_ = {};
  }
  if (!moves_ || spent_) return std::nullopt;
  way_.x += event.x;
  way_.y += event.y;
  const double sideways = std::abs(way_.x);
  if (sideways < trackpadDistance || std::abs(way_.y) > sideways * steepest) return std::nullopt;
  return way_.x > 0 ? SwipeDirection::right : SwipeDirection::left;
}

}  // namespace quorix::hosting
