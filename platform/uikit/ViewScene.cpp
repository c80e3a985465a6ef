#include "platform/uikit/ViewScene.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace quorix::uikit {
namespace {

using layout::Rect;

Rect intersection(const Rect& a, const Rect& b) {
  const layout::Point origin = {std::max(a.left(), b.left()), std::max(a.top(), b.top())};
  return {origin,
          {std::max(0.0, std::min(a.right(), b.right()) - origin.x),
           std::max(0.0, std::min(a.bottom(), b.bottom()) - origin.y)}};
}

bool isEmpty(const Rect& rect) { return rect.size.width <= 0 || rect.size.height <= 0; }

/// A text keeps its exact size: rounding must never make it break its lines anew.
Rect onPixels(const layout::PixelGrid& grid, const render::TextItem& item) {
  return {{grid.round(item.frame.left()), grid.round(item.frame.top())}, item.frame.size};
}

Rect onPixels(const layout::PixelGrid& grid, const auto& item) { return grid.round(item.frame); }

/// What a tap on `view` does, for as long as it lives.
std::function<void()> tapOn(UIView& view) {
  return [view = view.weak_from_this()] {
    const auto tapped = view.lock();
    if (!tapped) return;
    const auto recognizers = tapped->gestureRecognizers();
    for (const auto& recognizer : recognizers) recognizer->recognize();
  };
}

}  // namespace

ViewScene::ViewScene(const LayoutContext& context)
    : context_(context), grid_(context.display.scale) {}

render::Scene ViewScene::build(UIView& root) {
  scene_.size = root.frame().size;
  scene_.appearance = context_.display.appearance;
  Surroundings around;
  around.visible = root.frame();
  add(root, std::move(around));
  return std::move(scene_);
}

void ViewScene::add(UIView& view, Surroundings around) {
  if (view.isHidden()) return;
  const Rect exact = view.frame().translated(around.origin);
  const Rect frame = grid_.round(exact);
  around.origin = exact.origin;
  around.visible = intersection(around.visible, frame);
  around.touched = around.touched && view.isUserInteractionEnabled();
  paint(view, exact);
  takeTouches(view, around);
  describe(view, frame, around);
  for (const auto& subview : view.subviews()) add(*subview, around);
  const CALayer& layer = view.layer();
  if (layer.borderWidth() <= 0) return;
  const auto color = layer.borderColor() ? layer.borderColor()->resolve(scene_.appearance)
                                         : graphics::RGBA{0, 0, 0, 255};
  scene_.items.push_back(render::StrokeItem{frame, color, layer.borderWidth()});
}

void ViewScene::paint(const UIView& view, const Rect& frame) {
  const std::size_t before = scene_.items.size();
  view.draw(frame, context_, scene_.items);
  for (std::size_t i = before; i < scene_.items.size(); ++i) {
    std::visit([this](auto& item) { item.frame = onPixels(grid_, item); }, scene_.items[i]);
  }
}

/// A view that takes touches and has no recognizer of its own passes them to those that hold it,
/// and keeps them from what lies below it beside those.
void ViewScene::takeTouches(UIView& view, Surroundings& around) {
  if (!around.touched || isEmpty(around.visible)) return;
  auto& areas = scene_.hitAreas;
  if (!view.gestureRecognizers().empty()) {
    around.action = tapOn(view);
    areas.push_back({around.visible, around.action});
    around.areasBelow = areas.size();
    return;
  }
  const auto beside = areas.begin() + static_cast<std::ptrdiff_t>(around.areasBelow);
  const bool covers = std::any_of(beside, areas.end(), [&](const render::HitArea& area) {
    return !isEmpty(intersection(area.frame, around.visible));
  });
  if (!covers) return;
  areas.push_back({around.visible, around.action ? around.action : [] {}});
}

void ViewScene::describe(const UIView& view, const Rect& frame, const Surroundings& around) {
  auto element = view.describe(context_.display.language);
  if (view.accessibilityLabel()) {
    if (!element) element.emplace();
    element->label = *view.accessibilityLabel();
  }
  if (!element) return;
  element->frame = frame;
  element->action = around.action;
  if (element->action) element->role = render::Role::button;
  switch (view.accessibilityTraits()) {
    case UIAccessibilityTraits::none:
      break;
    case UIAccessibilityTraits::button:
      element->role = render::Role::button;
      break;
    case UIAccessibilityTraits::link:
      element->role = render::Role::link;
      break;
    case UIAccessibilityTraits::header:
      element->role = render::Role::heading;
      break;
  }
  // A picture that nobody named says nothing.
  if (element->label.empty() && !element->action) return;
  scene_.accessibility.push_back(std::move(*element));
}

}  // namespace quorix::uikit
