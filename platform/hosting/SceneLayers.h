#pragma once

#include <vector>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

namespace quorix::hosting {

/// A part of a scene that is painted as one picture, and what stands right on top of it.
struct SceneLayer {
  layout::Point origin;  ///< of the picture, in the whole scene
  render::Scene scene;   ///< items alone, from the picture's own corner; empty when none is needed
  const render::EmbedItem* embed = nullptr;  ///< the whole scene's own; null on top
};

/// `scene` cut where something paints itself: the first layer is as large as the scene, each
/// further one only as large as what it shows. There is always one layer more than there are
/// embeds. The picture of a layer also shows the background of its embed. Edges are on whole device
/// pixels at `scale`. The layers point into `scene`.
QUORIX_EXPORT std::vector<SceneLayer> layersOf(const render::Scene& scene, double scale);

/// Whether `scene` makes room for something that paints itself.
bool hasEmbeds(const render::Scene& scene);

}  // namespace quorix::hosting
