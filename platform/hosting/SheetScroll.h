#pragma once

#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// Scrolls a sheet's content by finger, key and wheel, and places the indicator. Offsets are points
/// from the content's top. Main thread.
class SheetScroll {
 public:
  /// `range` is by how much the content is taller than its room.
  void setRange(double range);
  double range() const { return range_; }
  /// Above `range` while a finger pulls beyond the end, and on the way back.
  double offset() const { return offset_; }
  /// Without motion, the content jumps to where it would have moved, and is not flung.
  void setMotion(bool enabled) { motion_ = enabled; }

  /// A finger presses. True if this stops a motion: the press is then no tap.
  bool hold();
  /// The finger is `down` points below where it pressed. Returns how far it pulls the panel down:
  /// the rest of the way once the content is at its top. Below 0, it pushes up a panel that does
  /// not scroll.
  double drag(double down);
  /// The whole drag, and not only its end, was at the content's top: a flick closes the sheet.
  bool isPulledFromTop() const;
  /// The finger leaves at a downward speed in points a second.
  void release(double speed);

  /// Moves by a key or a notch of a wheel.
  void moveBy(double distance);
  /// Follows two fingers at once.
  void follow(double distance);
  /// Brings the part from `top` to `bottom` into a room of `height`.
  void show(double top, double bottom, double height);

  bool isMoving() const;
  /// Moves on. Returns whether content or indicator changed.
  bool advance(double seconds);
  /// Ends all motion. False when there was none.
  bool settle();

  /// 0 while the content rests.
  double indicatorOpacity() const;
  /// The indicator at one side of `room`, in which the content moves.
  layout::Rect indicator(const layout::Rect& room, bool onLeft) const;

 private:
  double bounded(double offset) const;
  void goTo(double offset);
  void showIndicator();

  double range_ = 0;
  double offset_ = 0;
  double target_ = 0;  ///< outside the range for some flings
  double rate_ = 0;    ///< how fast the offset nears the target
  double heldAt_ = 0;
  double shownFor_ = 0;  ///< seconds that the indicator stays
  bool held_ = false;
  bool motion_ = true;
  bool flashes_ = false;  ///< shows the indicator: the content scrolls further than before
};

}  // namespace quorix::hosting
