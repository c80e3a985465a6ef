#include "platform/render/Scene.h"

namespace quorix::render {
namespace {

template <class Part>
void appendMoved(std::vector<Part>& to, const std::vector<Part>& from, layout::Point offset) {
  for (Part part : from) {
    part.frame = part.frame.translated(offset);
    to.push_back(std::move(part));
  }
}

}  // namespace

const HitArea* Scene::hitTest(layout::Point point) const {
  for (auto area = hitAreas.rbegin(); area != hitAreas.rend(); ++area) {
    if (area->frame.contains(point)) return &*area;
  }
  return nullptr;
}

void Scene::append(const Scene& other, layout::Point offset) {
  for (Item item : other.items) {
    std::visit([&](auto& part) { part.frame = part.frame.translated(offset); }, item);
    items.push_back(std::move(item));
  }
  appendMoved(hitAreas, other.hitAreas, offset);
  appendMoved(accessibility, other.accessibility, offset);
}

}  // namespace quorix::render
