#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

namespace quorix::hosting {

/// The ring around the element that has the keyboard focus. Points.
struct FocusRing {
  static constexpr double gap = 2;  ///< between the element and the ring
  static constexpr double width = 2;
  static constexpr double cornerRadius = 6;
  static constexpr double outset = gap + width;

  /// The ring's outer frame.
  static layout::Rect around(const layout::Rect& element) {
    return {{element.left() - outset, element.top() - outset},
            {element.size.width + 2 * outset, element.size.height + 2 * outset}};
  }

  /// The ring inside `frame`. Its contrast with a white or a black page is above 5:1. Guidelines
  /// require 3:1.
  static render::StrokeItem line(const layout::Rect& frame, graphics::Appearance appearance) {
    const bool dark = appearance == graphics::Appearance::dark;
    const graphics::RGBA color =
        dark ? graphics::RGBA{0x8a, 0xb4, 0xf8, 255} : graphics::RGBA{0x0b, 0x57, 0xd0, 255};
    return {frame, color, width, cornerRadius};
  }
};

/// A toolkit's object that shows a picture on a surface and takes no input. Main thread.
class ScenePicture {
 public:
  virtual ~ScenePicture() = default;
  /// Paints `scene` at `scale` device pixels a point.
  virtual void show(const render::Scene& scene, double scale) = 0;
  virtual void moveTo(layout::Point corner) = 0;
};

/// The focus ring as a picture of its own, which exists while the ring is shown. Main thread.
class QUORIX_EXPORT RingPicture {
 public:
  using Make = std::function<std::unique_ptr<ScenePicture>()>;

  /// Shows the ring around `element` with the surface's corner at `corner`. Paints only if the
  /// ring has changed.
  void follow(const std::optional<layout::Rect>& element, layout::Point corner,
              graphics::Appearance appearance, double scale, const Make& make);
  /// The toolkit lost the picture: the next `follow` paints it again.
  void paintAgain() { painted_.reset(); }
  /// Deletes the picture: the next `follow` makes another.
  void drop();

 private:
  struct Painted {
    layout::Rect element;
    graphics::Appearance appearance;
    double scale;
    bool operator==(const Painted&) const = default;
  };

  std::unique_ptr<ScenePicture> picture_;
  std::optional<Painted> painted_;
};

}  // namespace quorix::hosting
