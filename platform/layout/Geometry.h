#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace quorix::layout {

// All lengths are in points, with y growing downwards.

inline constexpr double infinity = std::numeric_limits<double>::infinity();

struct Size {
  double width = 0;
  double height = 0;
  bool operator==(const Size&) const = default;
};

struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

/// The distance between two points.
inline double distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

struct Rect {
  Point origin;
  Size size;

  double left() const { return origin.x; }
  double top() const { return origin.y; }
  double right() const { return origin.x + size.width; }
  double bottom() const { return origin.y + size.height; }
  bool contains(Point p) const {
    return p.x >= left() && p.x < right() && p.y >= top() && p.y < bottom();
  }
  bool contains(const Rect& other) const {
    return other.left() >= left() && other.right() <= right() && other.top() >= top() &&
           other.bottom() <= bottom();
  }
  bool isEmpty() const { return size.width <= 0 || size.height <= 0; }
  /// Its point that is nearest to `p`.
  Point nearest(Point p) const {
    return {std::min(std::max(p.x, left()), right()), std::min(std::max(p.y, top()), bottom())};
  }
  Rect translated(Point by) const { return {{origin.x + by.x, origin.y + by.y}, size}; }
  /// Larger by `by` on each side; smaller if `by` is negative.
  Rect outset(double by) const {
    return {{origin.x - by, origin.y - by}, {size.width + 2 * by, size.height + 2 * by}};
  }
  bool operator==(const Rect&) const = default;
};

/// The area that both cover; empty when they do not overlap.
inline Rect intersection(const Rect& a, const Rect& b) {
  const Point origin = {std::max(a.left(), b.left()), std::max(a.top(), b.top())};
  return {origin,
          {std::max(0.0, std::min(a.right(), b.right()) - origin.x),
           std::max(0.0, std::min(a.bottom(), b.bottom()) - origin.y)}};
}

/// The smallest rectangle around both.
inline Rect united(const Rect& a, const Rect& b) {
  const Point origin = {std::min(a.left(), b.left()), std::min(a.top(), b.top())};
  return {origin,
          {std::max(a.right(), b.right()) - origin.x, std::max(a.bottom(), b.bottom()) - origin.y}};
}

enum class LayoutDirection : std::uint8_t { leftToRight, rightToLeft };

/// Insets by reading direction: `leading` is left in left-to-right text.
struct EdgeInsets {
  double top = 0;
  double leading = 0;
  double bottom = 0;
  double trailing = 0;
  bool operator==(const EdgeInsets&) const = default;
};

/// Insets by side, independent of the reading direction.
struct SideInsets {
  double top = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;
  bool operator==(const SideInsets&) const = default;

  EdgeInsets in(LayoutDirection direction) const {
    return direction == LayoutDirection::rightToLeft ? EdgeInsets{top, right, bottom, left}
                                                     : EdgeInsets{top, left, bottom, right};
  }
};

/// Some of a rectangle's edges, by reading direction.
struct Edges {
  bool top = false;
  bool leading = false;
  bool bottom = false;
  bool trailing = false;

  static constexpr Edges all() { return {true, true, true, true}; }
  static constexpr Edges vertical() { return {true, false, true, false}; }
  bool operator==(const Edges&) const = default;
};

/// What a parent offers a child in each direction. 0 asks for the minimum, infinity for the
/// maximum, an absent value for the ideal size.
struct ProposedSize {
  std::optional<double> width;
  std::optional<double> height;
  bool operator==(const ProposedSize&) const = default;
};

enum class Axis : std::uint8_t { horizontal, vertical };

enum class HorizontalAlignment : std::uint8_t { leading, center, trailing };
enum class VerticalAlignment : std::uint8_t { top, center, bottom };

struct Alignment {
  HorizontalAlignment horizontal = HorizontalAlignment::center;
  VerticalAlignment vertical = VerticalAlignment::center;
  bool operator==(const Alignment&) const = default;
};

/// The offset at which an extent of `inner` starts inside one of `outer`.
inline double alignedOffset(HorizontalAlignment alignment, double outer, double inner) {
  if (alignment == HorizontalAlignment::leading) return 0;
  return alignment == HorizontalAlignment::center ? (outer - inner) / 2 : outer - inner;
}
inline double alignedOffset(VerticalAlignment alignment, double outer, double inner) {
  if (alignment == VerticalAlignment::top) return 0;
  return alignment == VerticalAlignment::center ? (outer - inner) / 2 : outer - inner;
}
inline Point alignedOffset(Alignment alignment, Size outer, Size inner) {
  return {alignedOffset(alignment.horizontal, outer.width, inner.width),
          alignedOffset(alignment.vertical, outer.height, inner.height)};
}

/// The part of a surface that the device does not cover (with a camera cut-out or bars), and the
/// insets around it.
struct SafeArea {
  Rect frame;
  EdgeInsets insets;

  /// The safe area of a surface of `size`. It is empty if the insets overlap.
  static SafeArea within(Size size, const EdgeInsets& insets) {
    return {{{insets.leading, insets.top},
             {std::max(0.0, size.width - insets.leading - insets.trailing),
              std::max(0.0, size.height - insets.top - insets.bottom)}},
            insets};
  }

  /// The insets that `rect` may cover: those of `edges` at which it touches the edge of the safe
  /// area. The others are 0.
  EdgeInsets beyond(const Rect& rect, Edges edges) const {
    constexpr double touching = 1e-6;
    EdgeInsets more;
    if (edges.top && rect.top() <= frame.top() + touching) more.top = insets.top;
    if (edges.leading && rect.left() <= frame.left() + touching) more.leading = insets.leading;
    if (edges.bottom && rect.bottom() >= frame.bottom() - touching) more.bottom = insets.bottom;
    if (edges.trailing && rect.right() >= frame.right() - touching) {
      more.trailing = insets.trailing;
    }
    return more;
  }
};

/// Converts lengths in points to whole device pixels.
class PixelGrid {
 public:
  /// `scale`: device pixels for each point, above 0.
  explicit PixelGrid(double scale) : scale_(scale) {}

  double pixel() const { return 1 / scale_; }
  /// The nearest pixel. Halves, and values that miss one by rounding noise, are always rounded up.
  /// Otherwise a hairline between two halves could vanish or double.
  double round(double length) const { return std::floor(length * scale_ + 0.5 + noise) / scale_; }

  /// The next whole pixel. Rounding noise above a whole pixel is ignored.
  double ceil(double length) const { return std::ceil(length * scale_ - noise) / scale_; }
  /// The whole pixel before. Rounding noise below a whole pixel is ignored.
  double floor(double length) const { return std::floor(length * scale_ + noise) / scale_; }
  Size ceil(Size size) const { return {ceil(size.width), ceil(size.height)}; }

  /// Rounds each edge, so that rectangles that touch still touch.
  Rect round(const Rect& rect) const {
    const Point origin = {round(rect.left()), round(rect.top())};
    return {origin, {round(rect.right()) - origin.x, round(rect.bottom()) - origin.y}};
  }

 private:
  static constexpr double noise = 1e-6;
  double scale_;
};

}  // namespace quorix::layout
