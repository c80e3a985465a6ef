#include "platform/hosting/SheetPictures.h"

#include <algorithm>
#include <utility>

#include "platform/layout/Geometry.h"

namespace quorix::hosting {
namespace {

using layout::Rect;
using render::EmbedItem;

/// The area that an item may paint.
Rect inked(const render::ImageItem& image) { return image.frame; }
Rect inked(const render::FillItem& fill) { return fill.frame; }
Rect inked(const render::StrokeItem& stroke) { return stroke.frame; }
Rect inked(const render::ClipItem& clip) { return clip.frame; }
Rect inked(const EmbedItem& embed) { return embed.frame; }

/// Letters can extend beyond their line.
Rect inked(const render::TextItem& text) { return text.frame.outset(text.frame.size.height); }

Rect inked(const render::Item& item) {
  return std::visit([](const auto& shown) { return inked(shown); }, item);
}

/// The lowest point at which an item differs from the color `ground`.
double bottomOfInk(const render::TextItem& text, graphics::RGBA) { return inked(text).bottom(); }
double bottomOfInk(const render::ImageItem& image, graphics::RGBA) { return image.frame.bottom(); }
double bottomOfInk(const render::StrokeItem& line, graphics::RGBA) { return line.frame.bottom(); }
double bottomOfInk(const render::ClipItem&, graphics::RGBA) { return 0; }

double bottomOfInk(const render::FillItem& fill, graphics::RGBA ground) {
  const bool blends = fill.color == ground && fill.bottomCornerRadius == 0;
  return blends ? fill.frame.top() + fill.topCornerRadius : fill.frame.bottom();
}

double bottomOfInk(const EmbedItem& page, graphics::RGBA ground) {
  return page.background == ground ? page.room().top() : page.frame.bottom();
}

void cutGround(render::Scene& panel, graphics::RGBA ground, double scale) {
  double ink = 0;
  for (const render::Item& item : panel.items) {
    const double bottom =
        std::visit([&](const auto& shown) { return bottomOfInk(shown, ground); }, item);
    ink = std::max(ink, bottom);
  }
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
  const auto& items = layer.scene.items;
  if (items.empty()) {
    layer.scene.size = {};
    return;
  }
  Rect all = inked(items.front());
  for (const render::Item& item : items) all = layout::united(all, inked(item));
  all = layout::PixelGrid(scale).round(within(all, layer.scene.size));
  layer = {all.origin, render::partOf(layer.scene, all)};
}

}  // namespace

std::vector<SceneLayer> layersOf(const render::Scene& scene, graphics::RGBA panelColor,
                                 double scale) {
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
    if (embed && embed->content) begin();
  }
  cutGround(layers.front().scene, panelColor, scale);
  for (std::size_t i = 1; i < layers.size(); ++i) crop(layers[i], scale);
  return layers;
}

bool SheetPictures::follow(SheetPresenter& sheet, const std::optional<Rect>& ring, double scale) {
  const std::pair now(sheet.panelRevision(), scale);  // before a layout, which may change it
  const render::Scene& scene = sheet.panel();         // which decides on the rest
  const bool paints = painted_ != now;
  if (paints) paint(sheet, scale);
  painted_ = now;
  const Rect panel = sheet.panelFrame();
  for (const Layer& layer : layers_) layer.picture->moveTo(panel.translated(layer.origin).origin);
  std::optional<Rect> ringed;
  // Rounded, because motion moves it by fractions of a pixel.
  if (ring) {
    ringed = layout::PixelGrid(scale).round(ring->translated({-panel.left(), -panel.top()}));
  }
  ring_.follow(ringed, panel.origin, scene.appearance, scale,
               [this] { return make_(static_cast<int>(layers_.size())); });
  ground_ = {sheet.shade(), panel, sheet.panelColor()};
  const double covered = std::min(end_, panel.size.height);
  ground_.below.origin.y += covered;
  ground_.below.size.height -= covered;
  return paints;
}

void SheetPictures::paint(SheetPresenter& sheet, double scale) {
  auto layers = layersOf(sheet.panel(), sheet.panelColor(), scale);
  end_ = layers.front().scene.size.height;
  if (hiddenTop_ > 0) {
    const Rect rest = {{0, hiddenTop_}, {layers.front().scene.size.width, end_ - hiddenTop_}};
    layers.front() = {rest.origin, render::partOf(layers.front().scene, rest)};
  }
  while (layers_.size() > layers.size()) layers_.pop_back();
  if (layers_.size() < layers.size()) ring_.drop();  // it has to be above all layers
  for (std::size_t i = 0; i < layers.size(); ++i) {
    if (i == layers_.size()) layers_.push_back({make_(static_cast<int>(i)), {}});
    layers_[i].picture->show(layers[i].scene, scale);
    layers_[i].origin = layers[i].origin;
  }
}

void SheetPictures::paintAgain() {
  painted_.reset();
  ring_.paintAgain();
}

bool SheetPictures::hideTop(double points) {
  const bool changes = std::exchange(hiddenTop_, points) != points;
  if (changes) painted_.reset();
  return changes;
}

}  // namespace quorix::hosting
