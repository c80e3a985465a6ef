#pragma once

#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// The scroll position of a sheet's content, its motion, and the scroll indicator. Offsets are
/// points from the content's top. Main thread.
class SheetScroll {
 public:
  /// `range`: the content's height minus the visible height.
  void setRange(double range);
  double range() const { return range_; }
  /// Above `range` while a finger pulls beyond the end, and until the content has moved back.
  double offset() const { return offset_; }
  /// Without motion, the content jumps to its target, and there are no flings.
  void setMotion(bool enabled) { motion_ = enabled; }

  /// A finger presses. True if this stopped a motion; then the press is not a tap.
  bool hold();
  /// Scrolls by a drag; `down`: points from the press to the finger. Returns the part of the drag
  /// beyond the content's top, by which the panel moves down. Negative for an upward drag of
  /// content that does not scroll.
  double drag(double down);
  /// Whether the content was at its top from the start of the drag to its end. Then a flick closes
  /// the sheet.
  bool isPulledFromTop() const;
  /// The finger is lifted at a downward speed in points a second.
  void release(double speed);

  /// Scrolls by a key or a wheel, with motion.
  void moveBy(double distance);
  /// Scrolls by two fingers, at once.
  void follow(double distance);
  /// Scrolls until the part from `top` to `bottom` is visible in `height` points.
  void show(double top, double bottom, double height);

  bool isMoving() const;
  /// Advances the motion. Returns whether content or indicator changed.
  bool advance(double seconds);
  /// Ends all motion. False if there was none.
  bool settle();

  /// 0 while the content rests.
  double indicatorOpacity() const;
  /// The frame of the indicator at one side of `room`, the visible area.
  layout::Rect indicator(const layout::Rect& room, bool onLeft) const;

 private:
  double bounded(double offset) const;
  void goTo(double offset);
  void showIndicator();

  double range_ = 0;
  double offset_ = 0;
  double target_ = 0;  ///< a fling's target may lie outside the range
  double rate_ = 0;    ///< rate at which the offset approaches the target
  double heldAt_ = 0;
  double shownFor_ = 0;  ///< seconds that the indicator stays visible
  bool held_ = false;
  bool motion_ = true;
  bool flashes_ = false;  ///< the content became scrollable: show the indicator
};

}  // namespace quorix::hosting
