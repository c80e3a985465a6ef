#include "platform/hosting/SceneLayers.h"

#include <algorithm>
#include <utility>

#include "platform/layout/Geometry.h"

namespace quorix::hosting {
namespace {

using layout::Rect;
using render::EmbedItem;

/// The area that `item` may paint. Letters can extend beyond their line.
Rect inked(const render::Item& item) {
  const Rect frame = std::visit([](const auto& shown) { return shown.frame; }, item);
  if (!std::holds_alternative<render::TextItem>(item)) return frame;
  const double reach = frame.size.height;
  return {{frame.left() - reach, frame.top() - reach},
          {frame.size.width + 2 * reach, frame.size.height + 2 * reach}};
}

/// The lowest point at which `item` differs from the color `ground`.
double bottomOfInk(const render::Item& item, graphics::RGBA ground) {
  if (std::holds_alternative<render::ClipItem>(item)) return 0;
  const auto* fill = std::get_if<render::FillItem>(&item);
  if (fill && fill->color == ground && fill->bottomCornerRadius == 0) {
    return fill->frame.top() + fill->topCornerRadius;
  }
  const auto* page = std::get_if<EmbedItem>(&item);
  if (page && page->background == ground) return page->room().top();
  return inked(item).bottom();
}

void cutGround(render::Scene& panel, graphics::RGBA ground, double scale) {
  double ink = 0;
  for (const render::Item& item : panel.items) ink = std::max(ink, bottomOfInk(item, ground));
  panel.size.height = std::min(panel.size.height, layout::PixelGrid(scale).ceil(ink));
}

/// Clips `rect` to the area of `size`. The origin of the result always lies inside the area; that
/// of an intersection may not.
Rect within(const Rect& rect, layout::Size size) {
  const layout::Point origin = {std::clamp(rect.left(), 0.0, size.width),
                                std::clamp(rect.top(), 0.0, size.height)};
  return {origin,
          {std::clamp(rect.right(), origin.x, size.width) - origin.x,
           std::clamp(rect.bottom(), origin.y, size.height) - origin.y}};
}

/// Crops the layer's picture to its items.
void crop(SceneLayer& layer, double scale) {
  auto& items = layer.scene.items;
  if (items.empty()) {
    layer.scene.size = {};
    return;
  }
  Rect all = inked(items.front());
  for (const render::Item& item : items) all = layout::united(all, inked(item));
  all = layout::PixelGrid(scale).round(within(all, layer.scene.size));
  for (render::Item& item : items) {
    std::visit(
        [&](auto& shown) {
          shown.frame = shown.frame.translated({-all.left(), -all.top()});
        },
        item);
  }
  layer.origin = all.origin;
  layer.scene.size = all.size;
}

}  // namespace

std::vector<SceneLayer> layersOf(const render::Scene& scene, graphics::RGBA ground, double scale) {
  std::vector<SceneLayer> layers;
  const auto begin = [&] {
    layers.emplace_back();
    layers.back().scene.size = scene.size;
    layers.back().scene.appearance = scene.appearance;
  };
  begin();
  for (const render::Item& item : scene.items) {
    layers.back().scene.items.push_back(item);
    const auto* embed = std::get_if<EmbedItem>(&item);
    if (!embed || !embed->content) continue;
    layers.back().embed = embed;
    begin();
  }
  cutGround(layers.front().scene, ground, scale);
  for (std::size_t i = 1; i < layers.size(); ++i) crop(layers[i], scale);
  return layers;
}

bool hasEmbeds(const render::Scene& scene) {
  return std::any_of(scene.items.begin(), scene.items.end(), [](const render::Item& item) {
    const auto* embed = std::get_if<EmbedItem>(&item);
    return embed && embed->content;
  });
}

}  // namespace quorix::hosting
