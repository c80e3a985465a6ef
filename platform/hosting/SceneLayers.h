#pragma once

#include <vector>

#include "platform/foundation/Export.h"
#include "platform/render/Scene.h"

namespace quorix::hosting {

/// A part of a display list that is painted as one picture, and the embed directly above it.
struct SceneLayer {
  layout::Point origin;  ///< of the picture, in the whole scene
  render::Scene scene;   ///< items alone, from the picture's own corner; empty when none is needed
  const render::EmbedItem* embed = nullptr;  ///< the whole scene's own; null on top
};

/// Cuts a panel's `scene` at its embeds, which makes one layer more than there are embeds. The
/// first layer is as wide as the scene, and ends where only the panel's color, `ground`, is left
/// below. Each further one is only as large as its items. A layer's picture includes the background
/// of its embed. Edges are on whole device pixels at `scale`. The layers point into `scene`.
QUORIX_EXPORT std::vector<SceneLayer> layersOf(const render::Scene& scene, graphics::RGBA ground,
                                               double scale);

/// Whether `scene` has an embed with content.
bool hasEmbeds(const render::Scene& scene);

}  // namespace quorix::hosting
