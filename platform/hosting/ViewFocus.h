#pragma once

#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// What the keyboard focus does inside one view: which element it comes to, and whether the ring
/// around that element is to be seen, which it is only for who uses the keyboard. Main thread.
class QUORIX_EXPORT ViewFocus {
 public:
  /// Why the surface got the focus or lost it.
  enum class Cause {
    forward,       ///< the keyboard, from what stands before
    backward,      ///< the keyboard, from what stands after
    interruption,  ///< a pop-up or another window has it for a while, or gives it back
    other,
  };

  explicit ViewFocus(ViewHost& host) : host_(host) {}

  void came(Cause cause);
  void left(Cause cause);
  /// The keyboard moves it on. False when there is no further element: the focus leaves the view.
  bool walk(bool forward);
  /// The view was replaced while it had the focus: it comes to the first element of the new one,
  /// and the ring is seen as before.
  void renewed() { host_.moveFocus(true); }
  /// The user points: nobody needs the ring.
  void hideRing() { ringWanted_ = false; }

  /// The element that the ring goes around.
  std::optional<layout::Rect> ring() const;

 private:
  ViewHost& host_;
  bool ringWanted_ = false;
};

}  // namespace quorix::hosting
