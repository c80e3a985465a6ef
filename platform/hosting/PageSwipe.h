#pragma once

#include <cstdint>
#include <optional>

#include "platform/hosting/Input.h"

namespace quorix::hosting {

/// Where a swipe moves a page.
enum class SwipeDirection : std::uint8_t { right, left };

/// Recognizes the swipe of a finger from a side of a page towards its middle. Main thread.
class EdgeSwipe {
 public:
  struct Swipe {
    SwipeDirection direction;
    bool isFar;  ///< to count when the finger is lifted
  };

  /// Absent until the finger certainly swipes, so that taps and vertical drags are the page's. From
  /// then on the page must not get the finger.
  std::optional<Swipe> follow(const TouchEvent& event);

 private:
  struct Finger {
    layout::Point start;
    SwipeDirection direction;
    bool swipes = false;
  };
  std::optional<Finger> finger_;
};

/// Recognizes the sideways swipe of two fingers on a trackpad. Main thread.
class TrackpadSwipe {
 public:
  /// Absent until the fingers have come far enough sideways, and once they left the trackpad.
  std::optional<SwipeDirection> follow(const TrackpadEvent& event);
  /// When the fingers began, as a `TrackpadEvent::time`.
  double began() const { return began_; }
  /// The swipe counted: recognizes the next one only after the fingers left the trackpad.
  void spend() { spent_ = true; }

 private:
  bool moves_ = false;
  bool spent_ = false;
  double began_ = 0;
  layout::Point way_{};
};

}  // namespace quorix::hosting
