#pragma once

#include <cstdint>
#include <vector>

#include "platform/layout/Geometry.h"

namespace quorix::hosting {

/// What a pointer did on a surface.
struct PointerEvent {
  enum class Phase : std::uint8_t { pressed, moved, released };
  static constexpr int mouse = -1;

  Phase phase;
  layout::Point point;  ///< from the surface's top left
  double time = 0;      ///< milliseconds; only differences count
  int pointer = mouse;  ///< the mouse, or the number of a finger
};

/// A wheel or two fingers on a trackpad scroll.
struct ScrollEvent {
  static constexpr double line = 20;  ///< points that a wheel counts as a line of text

  double distance;       ///< points towards the content's end
  bool follows = false;  ///< a trackpad's: the content follows at once, instead of gliding
};

/// Fingers on a page.
struct TouchEvent {
  PointerEvent::Phase phase;  ///< pressed: the first finger, released: the last one
  layout::Point point;        ///< the first finger, from the page's top left
  int fingers = 1;
  double pageWidth = 0;
};

/// Two fingers on a trackpad scroll a page.
struct TrackpadEvent {
  bool begins;     ///< the fingers were put down
  bool byFingers;  ///< false: they left the trackpad, or what they threw still moves
  double x, y;     ///< points that the content moves to the right and down
  double time;     ///< milliseconds since 1970, for comparison with the page's own clock
};

/// A key by what it means to a view, a sheet or a page.
enum class Key : std::uint8_t {
  other,
  activate,     ///< Enter, Space: a tap on the focused element
  next,         ///< Tab
  previous,     ///< Shift and Tab
  escape,       ///< closes a sheet
  back,         ///< a phone's Back key: the page's way back, or else closes a sheet
  pageBack,     ///< Alt and Left
  pageForward,  ///< Alt and Right
  up,           ///< this and the next ones scroll
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

/// What closed a sheet.
enum class SheetCloseReason : std::uint8_t {
  button,   ///< an element of the sheet itself, such as its cross
  swipe,    ///< a swipe down
  outside,  ///< a tap beside the sheet
  key,      ///< Escape, the Back key
  host,     ///< anything else: the user did not close it
};

/// Measures how fast a finger moves along one axis before it is lifted. A finger that rested before
/// that has speed 0.
class VelocityTracker {
 public:
  /// The finger is at `position` (points) at the time `seconds`.
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
  static constexpr double kShortest = 0.001;  // seconds; samples at one instant tell no speed

  struct Sample {
    double position;
    double seconds;
  };
  std::vector<Sample> samples_;  ///< of the last tenth of a second
};

}  // namespace quorix::hosting
