#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/hosting/RingPicture.h"
#include "platform/hosting/SheetPresenter.h"

namespace quorix::hosting {

/// A part of a display list that is painted as one picture.
struct SceneLayer {
  layout::Point origin;  ///< of the picture, in the whole display list
  render::Scene scene;   ///< items only, relative to the picture; empty if there are none
};

/// Splits a panel's `scene` into layers: the first up to the first embed, and one above each embed.
/// A layer includes the background of its embed. The first layer is as wide as the panel and ends
/// where only `panelColor` remains; each further layer is only as large as its items. Edges are on
/// whole device pixels at `scale`.
std::vector<SceneLayer> layersOf(const render::Scene& scene, graphics::RGBA panelColor,
                                 double scale);

/// The pictures of a sheet for a toolkit that moves them without painting: from the bottom up the
/// panel, what lies above each page, and the focus ring. Main thread.
class SheetPictures {
 public:
  /// Makes a picture above those before it; `index` counts from the panel, the ring included.
  using Make = std::function<std::unique_ptr<ScenePicture>(int index)>;
  explicit SheetPictures(Make make) : make_(std::move(make)) {}

  /// Paints what has changed, and moves the pictures to the panel's place. `ring` is the frame in
  /// the window to draw the focus ring around. Returns whether it painted the panel.
  bool follow(SheetPresenter& sheet, const std::optional<layout::Rect>& ring, double scale);
  /// The toolkit lost the pictures: the next `follow` paints them again.
  void paintAgain();
  /// Leaves out the uppermost `points` of the panel, which a page covers: the panel's color would
  /// show at the page's edge. Returns whether to call `follow` again.
  bool hideTop(double points);

  /// What the sheet itself paints, below its pictures.
  struct Ground {
    graphics::RGBA shade{0, 0, 0, 0};  ///< over the whole window
    layout::Rect below;  ///< from where the panel's picture ends to the panel's bottom
    graphics::RGBA color{0, 0, 0, 0};  ///< the color of `below`
  };
  const Ground& ground() const { return ground_; }
  /// The picture of layer `index`.
  ScenePicture& picture(int index) const { return *layers_[std::size_t(index)].picture; }

 private:
  void paint(SheetPresenter& sheet, double scale);

  struct Layer {
    std::unique_ptr<ScenePicture> picture;
    layout::Point origin;  ///< in the panel
  };

  Make make_;
  std::vector<Layer> layers_;
  RingPicture ring_;
  std::optional<std::pair<unsigned, double>> painted_;  ///< the panel's revision, and the scale
  double end_ = 0;  ///< points from the panel's top to the end of its picture
  double hiddenTop_ = 0;
  Ground ground_;
};

}  // namespace quorix::hosting
