#pragma once

#include <cstdint>
#include <vector>

#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// An event of the mouse or of a finger on a surface.
struct PointerEvent {
  enum class Phase : std::uint8_t { pressed, moved, released };
  static constexpr int mouse = -1;

  Phase phase;
  layout::Point point;  ///< from the surface's top left
  double time = 0;      ///< milliseconds; only differences count
  int pointer = mouse;  ///< the mouse, or a finger's number
};

/// Scrolling by a wheel or by two fingers on a trackpad.
struct ScrollEvent {
  static constexpr double line = 20;  ///< points for each line that a wheel scrolls

  double distance;       ///< points towards the content's end
  bool follows = false;  ///< true for a trackpad: the content moves at once, without gliding
};

/// A touch on a page.
struct TouchEvent {
  PointerEvent::Phase phase;  ///< pressed: by the first finger; released: by the last
  layout::Point point;        ///< of the first finger, from the page's top left
  int fingers = 1;
  double pageWidth = 0;
};

/// Scrolling on a page by two fingers on a trackpad.
struct TrackpadEvent {
  bool begins;     ///< the fingers were put down
  bool byFingers;  ///< false: a fling, or the fingers left the trackpad
  double x, y;     ///< points that the content moves to the right and down
  double time;     ///< milliseconds since 1970, comparable with the page's own clock
};

/// A key by its meaning for a view, a sheet or a page.
enum class Key : std::uint8_t {
  other,
  activate,     ///< Enter, Space: a tap on the focused element
  next,         ///< Tab
  previous,     ///< Shift and Tab
  escape,       ///< closes a sheet
  back,         ///< a phone's Back key: goes back in the page, or closes the sheet
  pageBack,     ///< Alt and Left
  pageForward,  ///< Alt and Right
  up,           ///< scrolls, like the next ones
  down,
  pageUp,
  pageDown,
  home,
  end,
};

struct KeyEvent {
  Key key;
  bool repeated = false;  ///< the key is held down
};

/// How a sheet was closed.
enum class SheetCloseReason : std::uint8_t {
  button,   ///< an element of the sheet itself, such as its cross
  swipe,    ///< a swipe down
  outside,  ///< a tap beside the sheet
  key,      ///< Escape, the Back key
  host,     ///< other reasons: not closed by the user
};

/// Measures the speed of a finger along one axis at its release. The speed is 0 if the finger
/// rested before it was lifted.
class VelocityTracker {
 public:
  /// Adds a sample: the finger is at `position` (points) at the time `seconds`.
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
  static constexpr double kShortest = 0.001;  // seconds; a shorter time gives no speed

  struct Sample {
    double position;
    double seconds;
  };
  std::vector<Sample> samples_;  ///< of the last tenth of a second
};

}  // namespace quorix::hosting
