#include "platform/render/Scene.h"

#include <algorithm>
#include <utility>

namespace quorix::render {
namespace {

template <class Part>
void appendMoved(std::vector<Part>& to, std::vector<Part> from, layout::Point offset) {
  for (Part& part : from) {
    part.frame = part.frame.translated(offset);
    to.push_back(std::move(part));
  }
}

/// The top-most embed under `point`, or null. Hit areas above it are ignored.
const EmbedItem* embedUnder(const std::vector<Item>& items, layout::Point point) {
  for (auto item = items.rbegin(); item != items.rend(); ++item) {
    const auto* embed = std::get_if<EmbedItem>(&*item);
    if (embed && embed->content && embed->room().contains(point)) return embed;
  }
  return nullptr;
}

}  // namespace

layout::Rect EmbedItem::room() const {
  const double lost = std::clamp(topCornerRadius, 0.0, frame.size.height);
  return {{frame.left(), frame.top() + lost}, {frame.size.width, frame.size.height - lost}};
}

const HitArea* Scene::hitTest(layout::Point point) const {
  const EmbedItem* embed = embedUnder(items, point);
  for (std::size_t i = hitAreas.size(); i > (embed ? embed->hitAreasBelow : 0); --i) {
    if (hitAreas[i - 1].frame.contains(point)) return &hitAreas[i - 1];
  }
  return nullptr;
}

void Scene::append(Scene other, layout::Point offset) {
  for (Item& item : other.items) {
    std::visit([&](auto& part) { part.frame = part.frame.translated(offset); }, item);
    if (auto* embed = std::get_if<EmbedItem>(&item)) embed->hitAreasBelow += hitAreas.size();
    items.push_back(std::move(item));
  }
  appendMoved(hitAreas, std::move(other.hitAreas), offset);
  appendMoved(accessibility, std::move(other.accessibility), offset);
}

}  // namespace quorix::render
