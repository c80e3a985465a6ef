#pragma once

#include <optional>

#include "platform/foundation/Export.h"
#include "platform/hosting/ViewHost.h"

namespace quorix::hosting {

/// Moves the keyboard focus inside one view, and shows the ring around the focused element while
/// the keyboard is in use. Main thread.
class QUORIX_EXPORT ViewFocus {
 public:
  /// Why the surface got the focus or lost it.
  enum class Cause {
    forward,       ///< by keyboard, from before the view
    backward,      ///< by keyboard, from behind it
    interruption,  ///< to or from a pop-up or another window
    other,
  };

  explicit ViewFocus(ViewHost& host) : host_(host) {}

  void came(Cause cause);
  void left(Cause cause);
  /// Moves the focus by keyboard. False after the last element: the focus leaves the view.
  bool walk(bool forward);
  /// Focuses the first element of a view that replaced the focused one; the ring stays as it was.
  void renewed() { host_.moveFocus(true); }
  /// Hides the ring when the user points.
  void hideRing() { ringWanted_ = false; }

  /// The frame of the focus ring.
  std::optional<layout::Rect> ring() const;

 private:
  ViewHost& host_;
  bool ringWanted_ = false;
};

}  // namespace quorix::hosting
