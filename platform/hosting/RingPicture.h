#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

namespace quorix::hosting {

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
