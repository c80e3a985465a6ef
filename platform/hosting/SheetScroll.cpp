#include "platform/hosting/SheetScroll.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorix::hosting {
namespace {

constexpr double approach = 14;        // per second: how fast the content approaches its target
constexpr double friction = 2;         // per second: rate at which a fling slows down
constexpr double resistance = 0.2;     // factor for a drag beyond the end
constexpr double arrivesWithin = 0.5;  // points
constexpr double stillMoving = 8;      // points; a press on a longer motion stops it and is no tap
constexpr double indicatorStays = 1;   // seconds
constexpr double indicatorFades = 0.25;

constexpr double indicatorWidth = 3;
constexpr double indicatorMargin = 3;
constexpr double shortestIndicator = 36;

}  // namespace

double SheetScroll::bounded(double offset) const { return std::clamp(offset, 0.0, range_); }

void SheetScroll::setRange(double range) {
  if (range < arrivesWithin) range = 0;
  if (range == range_) return;
  flashes_ = range > 0 && (flashes_ || range_ == 0);
  range_ = range;
  if (range == 0) shownFor_ = 0;
  offset_ = bounded(offset_);
  target_ = bounded(target_);
}

// Finger.

bool SheetScroll::hold() {
  held_ = true;
  heldAt_ = offset_;
  return std::abs(bounded(std::exchange(target_, offset_)) - offset_) > stillMoving;
}

double SheetScroll::drag(double down) {
  const double wanted = heldAt_ - down;
  const double before = std::exchange(offset_, bounded(wanted));
  const double beyond = wanted - offset_;
  double pull = 0;
  if (beyond > 0 && range_ > 0) {
    offset_ += beyond * resistance;
  } else {
    pull = beyond > 0 ? -beyond * resistance : -beyond;
  }
  if (offset_ != before) showIndicator();
  return pull;
}

bool SheetScroll::isPulledFromTop() const { return heldAt_ < arrivesWithin && offset_ == 0; }

void SheetScroll::release(double speed) {
  held_ = false;
  const bool isBeyond = offset_ > range_;
  target_ = isBeyond ? range_ : offset_ - (motion_ ? speed : 0) / friction;
  rate_ = isBeyond ? approach : friction;
}

// Wheel, keys, focus.

void SheetScroll::goTo(double offset) {
  if (held_) return;
  target_ = bounded(offset);
  rate_ = approach;
  if (target_ != offset_) showIndicator();
}

void SheetScroll::moveBy(double distance) {
  goTo((rate_ == approach ? target_ : offset_) + distance);
}

void SheetScroll::follow(double distance) {
  if (held_) return;
  goTo(offset_ + distance);
  offset_ = target_;
}

void SheetScroll::show(double top, double bottom, double height) {
  goTo(std::min(std::max(bounded(target_), bottom - height), top));
}

// Motion.

bool SheetScroll::isMoving() const {
  return (!held_ && offset_ != bounded(target_)) || shownFor_ > 0 || flashes_;
}

bool SheetScroll::advance(double seconds) {
  const double before = offset_;
  const double opacity = indicatorOpacity();
  if (seconds > 0 && std::exchange(flashes_, false)) showIndicator();
  if (!held_) {
    const double end = bounded(target_);
    const double next = offset_ + (target_ - offset_) * (1 - std::exp(-rate_ * seconds));
    const bool passes = (end - next) * (end - offset_) <= 0;
    const bool arrives = !motion_ || passes || std::abs(end - next) < arrivesWithin;
    offset_ = arrives ? end : next;
    if (arrives) target_ = end;
  }
  if (offset_ != before) {
    showIndicator();
  } else {
    shownFor_ = std::max(0.0, shownFor_ - seconds);
  }
  return offset_ != before || indicatorOpacity() != opacity;
}

bool SheetScroll::settle() {
  const bool moved = isMoving();
  held_ = false;
  offset_ = target_ = bounded(target_);
  shownFor_ = 0;
  flashes_ = false;
  return moved;
}

// Indicator.

void SheetScroll::showIndicator() { shownFor_ = indicatorStays + indicatorFades; }

double SheetScroll::indicatorOpacity() const {
  if (range_ == 0) return 0;
  if (!motion_) return shownFor_ > indicatorFades ? 1 : 0;
  return std::min(1.0, shownFor_ / indicatorFades);
}

layout::Rect SheetScroll::indicator(const layout::Rect& room, bool onLeft) const {
  const double content = room.size.height + range_;
  const double track = room.size.height - 2 * indicatorMargin;
  const double length =
      std::min(track, std::max(shortestIndicator, track * room.size.height / content));
  const double part = range_ > 0 ? bounded(offset_) / range_ : 0;
  return {{onLeft ? room.left() + indicatorMargin : room.right() - indicatorMargin - indicatorWidth,
           room.top() + indicatorMargin + part * (track - length)},
          {indicatorWidth, std::max(0.0, length)}};
}

}  // namespace quorix::hosting
