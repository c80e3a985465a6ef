#include "platform/render/Scene.h"

#include <algorithm>
#include <cmath>
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

/// The top-most embed under `point`, or null. Ignores hit areas above it.
const EmbedItem* embedUnder(const std::vector<Item>& items, layout::Point point) {
  for (auto item = items.rbegin(); item != items.rend(); ++item) {
    const auto* embed = std::get_if<EmbedItem>(&*item);
    if (embed && embed->content && embed->room().contains(point)) return embed;
  }
  return nullptr;
}

/// The distance of `point` from `frame`; infinite if the point is outside the enlarged tap area.
double reach(const layout::Rect& frame, layout::Point point) {
  const auto beside = [](double low, double length, double at) {
    if (at >= low && at < low + length) return 0.0;
    const double distance = std::max(low - at, at - (low + length));
    return distance < (Scene::roomToTap - length) / 2 ? distance : layout::infinity;
  };
  return std::hypot(beside(frame.left(), frame.size.width, point.x),
                    beside(frame.top(), frame.size.height, point.y));
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
  if (embed) return nullptr;
  const HitArea* nearest = nullptr;
  double nearestReach = layout::infinity;
  for (const HitArea& area : hitAreas) {
    const double own = reach(area.frame, point);
    if (own > nearestReach || own == layout::infinity) continue;
    nearest = &area;
    nearestReach = own;
  }
  return nearest;
}

bool Scene::isFocusStop(std::size_t index) const {
  const foundation::Action& action = accessibility[index].action;
  const auto alike = std::ranges::find(accessibility, action, &AccessibilityElement::action);
  return action && alike - accessibility.begin() == static_cast<std::ptrdiff_t>(index);
}

layout::Rect Scene::actingFrame(std::size_t index) const {
  layout::Rect frame = accessibility[index].frame;
  for (const AccessibilityElement& element : accessibility) {
    if (element.action && element.action == accessibility[index].action) {
      frame = united(frame, element.frame);
    }
  }
  return frame;
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

namespace {

struct Stretch {
  double start;
  double length;
};

Stretch stretchToPaint(double length, Stretch seen, double scale) {
  const double most = mostPixels / scale;
  if (length <= most) return {0, length};
  const double centered = seen.start + (seen.length - most) / 2;
  const double start = std::clamp(centered, 0.0, length - most);
  return {layout::PixelGrid(scale).floor(start), most};
}

}  // namespace

layout::Rect partToPaint(layout::Size size, const layout::Rect& seen, double scale) {
  const Stretch across = stretchToPaint(size.width, {seen.origin.x, seen.size.width}, scale);
  const Stretch down = stretchToPaint(size.height, {seen.origin.y, seen.size.height}, scale);
  return {{across.start, down.start}, {across.length, down.length}};
}

Scene partOf(const Scene& scene, const layout::Rect& part) {
  Scene result;
  result.size = part.size;
  result.appearance = scene.appearance;
  result.append(scene, {-part.origin.x, -part.origin.y});
  return result;
}

}  // namespace quorix::render
