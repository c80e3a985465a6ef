#pragma once

#include <cstdint>
#include <optional>

#include "platform/hosting/Input.h"

namespace quorix::hosting {

/// The direction in which a swipe moves the page.
enum class SwipeDirection : std::uint8_t { right, left };

/// Recognizes a finger's swipe from a side of a page towards its center. Main thread.
class EdgeSwipe {
 public:
  struct Swipe {
    SwipeDirection direction;
    bool isFar;  ///< far enough to count when the finger is lifted
  };

  /// Absent until the movement is certainly a swipe, so that the page gets taps and vertical drags.
  /// After that, withhold the finger's events from the page.
  std::optional<Swipe> follow(const TouchEvent& event);

 private:
  struct Finger {
    layout::Point start;
    SwipeDirection direction;
    bool swipes = false;
  };
  std::optional<Finger> finger_;
};

/// Recognizes a sideways swipe with two fingers on a trackpad. Main thread.
class TrackpadSwipe {
 public:
  /// Absent until the fingers have moved far enough sideways, and after they left the trackpad.
  std::optional<SwipeDirection> follow(const TrackpadEvent& event);
  /// The time at which the swipe began, as a `TrackpadEvent::time`.
  double began() const { return began_; }
  /// Ends this swipe: the next one is recognized only after the fingers left the trackpad.
  void spend() { spent_ = true; }

 private:
  bool moves_ = false;
  bool spent_ = false;
  double began_ = 0;
  layout::Point way_{};
};

}  // namespace quorix::hosting
