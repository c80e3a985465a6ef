#include "platform/hosting/SceneBuilder.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/graphics/ImageName.h"

namespace quorix::hosting {
namespace {

namespace elements = layout::elements;
namespace modifiers = swiftui::modifiers;
using render::AccessibilityElement;
using render::Role;

/// A text keeps its exact size: rounding must never make it break its lines anew.
layout::Rect textFrame(const layout::PixelGrid& grid, const layout::Rect& frame) {
  return {{grid.round(frame.left()), grid.round(frame.top())}, frame.size};
}

std::string spoken(const text::AttributedText& text) {
  std::string words;
  for (const text::Run& run : text.runs) words += run.text;
  return words;
}

/// One element in place of all that it holds. Its heading stays one, so that a reader who walks
/// from heading to heading still stops there.
AccessibilityElement merged(const std::vector<AccessibilityElement>& children,
                            const layout::Rect& frame) {
  AccessibilityElement element;
  element.frame = frame;
  const auto isHeading = [](const auto& child) { return child.role == Role::heading; };
  if (std::any_of(children.begin(), children.end(), isHeading)) element.role = Role::heading;
  return element;
}

const elements::Image* firstImage(const layout::Element& element) {
  if (const auto* image = std::get_if<elements::Image>(&element.kind)) return image;
  for (const layout::Element& child : element.children) {
    if (const auto* image = firstImage(child)) return image;
  }
  return nullptr;
}

bool isNamed(const AccessibilityElement& element) {
  return !element.label.empty() || !element.hint.empty();
}

/// An element that acts is a button to whoever can't see it, and the first action given is the one.
void act(AccessibilityElement& element, const std::function<void()>& action) {
  if (element.action) return;
  element.action = action;
  if (element.role != Role::link) element.role = Role::button;
}

}  // namespace

SceneBuilder::SceneBuilder(const swiftui::Evaluation& evaluation,
                           const swiftui::Environment& environment, text::TextEngine& engine,
                           GeometryVisitor visitGeometry)
    : evaluation_(evaluation),
      display_{environment.appearance, environment.direction, environment.scale,
               environment.language},
      engine_(engine),
      visitGeometry_(std::move(visitGeometry)),
      grid_(environment.scale) {
  scene_.appearance = environment.appearance;
}

render::Scene SceneBuilder::build() {
  scene_.accessibility = add(evaluation_.root);
  // A picture that nobody named says nothing.
  std::erase_if(scene_.accessibility, [](const AccessibilityElement& element) {
    return !isNamed(element) && !element.action;
  });
  return std::move(scene_);
}

SceneBuilder::Accessibility SceneBuilder::add(const layout::Element& element) {
  if (const auto* decorated = std::get_if<elements::Decorated>(&element.kind)) {
    const auto index = static_cast<std::size_t>(decorated->decoration);
    return decorate(evaluation_.decorations[index], element);
  }
  if (const auto* hosted = std::get_if<elements::Hosted>(&element.kind)) {
    return host(*evaluation_.hosted[static_cast<std::size_t>(hosted->content)], element);
  }
  paint(element);
  Accessibility described = describe(element);
  Accessibility below = addChildren(element);
  std::move(below.begin(), below.end(), std::back_inserter(described));
  return described;
}

SceneBuilder::Accessibility SceneBuilder::host(render::HostedContent& content,
                                               const layout::Element& element) {
  const layout::Rect frame = grid_.round(element.frame);
  const std::size_t before = scene_.accessibility.size();
  scene_.append(content.scene(frame.size, display_, engine_), frame.origin);
  const auto first = scene_.accessibility.begin() + static_cast<std::ptrdiff_t>(before);
  Accessibility described(std::make_move_iterator(first),
                          std::make_move_iterator(scene_.accessibility.end()));
  scene_.accessibility.erase(first, scene_.accessibility.end());
  return described;
}

SceneBuilder::Accessibility SceneBuilder::addChildren(const layout::Element& element) {
  if (std::holds_alternative<elements::Background>(element.kind)) {
    add(element.children.back());
    return add(element.children.front());
  }
  Accessibility all;
  for (const layout::Element& child : element.children) {
    Accessibility below = add(child);
    std::move(below.begin(), below.end(), std::back_inserter(all));
  }
  return all;
}

void SceneBuilder::paint(const layout::Element& element) {
  if (const auto* text = std::get_if<elements::Text>(&element.kind)) {
    const double part = text->drawnAt;
    scene_.items.push_back(render::TextItem{textFrame(grid_, element.frame),
                                            part == 1 ? text->text : text->text.scaled(part)});
  } else if (const auto* image = std::get_if<elements::Image>(&element.kind)) {
    scene_.items.push_back(
        render::ImageItem{grid_.round(element.frame), image->name, image->bundle, image->tint});
  } else if (const auto* divider = std::get_if<elements::Divider>(&element.kind)) {
    scene_.items.push_back(render::FillItem{grid_.round(element.frame), divider->color});
  } else if (const auto* fill = std::get_if<elements::Fill>(&element.kind)) {
    scene_.items.push_back(render::FillItem{grid_.round(element.frame), fill->color});
  } else if (const auto* stroke = std::get_if<elements::Stroke>(&element.kind)) {
    scene_.items.push_back(
        render::StrokeItem{grid_.round(element.frame), stroke->color, stroke->width});
  }
}

SceneBuilder::Accessibility SceneBuilder::describe(const layout::Element& element) const {
  AccessibilityElement described;
  described.frame = grid_.round(element.frame);
  if (const auto* text = std::get_if<elements::Text>(&element.kind)) {
    described.label = spoken(text->text);
  } else if (std::holds_alternative<elements::Image>(element.kind)) {
    described.role = Role::image;
  } else {
    return {};
  }
  return {described};
}

std::string SceneBuilder::buttonLabel(const layout::Element& label,
                                      const Accessibility& below) const {
  std::string words;
  for (const AccessibilityElement& part : below) {
    if (!words.empty() && !part.label.empty()) words += ", ";
    words += part.label;
  }
  if (!words.empty()) return words;
  const elements::Image* image = firstImage(label);
  return image ? graphics::spokenName(*image->bundle, image->name, display_.language) : words;
}

/// Applies a decoration to what assistive technology meets inside it.
struct SceneBuilder::Decorator {
  SceneBuilder& self;
  const swiftui::Decoration& decoration;
  const layout::Element& element;
  const layout::Rect& frame;
  Accessibility& below;

  void operator()(const modifiers::AccessibilityElement&) { below = {merged(below, frame)}; }
  void operator()(const modifiers::AddTraits& m) {
    const bool isButton = m.trait == swiftui::AccessibilityTrait::isButton;
    for (auto& child : below) child.role = isButton ? Role::button : Role::heading;
  }
  void operator()(const modifiers::Label& m) {
    for (auto& child : below) child.label = m.text.resolved();
  }
  void operator()(const modifiers::Hint& m) {
    for (auto& child : below) child.hint = m.text.resolved();
  }
  void operator()(const modifiers::Hidden& m) {
    if (m.hidden) below.clear();
  }
  void operator()(const modifiers::AccessibilityAction& m) {
    for (auto& child : below) act(child, m.action);
  }
  /// A picture that nobody named is not made to act beside what has a name.
  void operator()(const modifiers::TapGesture& m) {
    const bool anyNamed = std::any_of(below.begin(), below.end(), isNamed);
    for (auto& child : below) {
      if (!anyNamed || isNamed(child)) act(child, m.action);
    }
  }
  void operator()(const modifiers::Button& m) {
    AccessibilityElement button;
    button.frame = frame;
    button.role = Role::button;
    button.label = self.buttonLabel(element, below);
    button.action = m.action;
    below = {button};
  }
  void operator()(const modifiers::GeometryChange& m) {
    self.visitGeometry_(decoration.path, element.frame.size, m.action);
  }
  void operator()(const auto&) {}  // the rest never is a decoration
};

SceneBuilder::Accessibility SceneBuilder::decorate(const swiftui::Decoration& decoration,
                                                   const layout::Element& element) {
  const layout::Rect frame = grid_.round(element.frame);
  // Hit areas go before what lies inside and on top of them.
  if (const auto* tap = std::get_if<modifiers::TapGesture>(decoration.modifier)) {
    scene_.hitAreas.push_back({frame, tap->action});
  } else if (const auto* button = std::get_if<modifiers::Button>(decoration.modifier)) {
    scene_.hitAreas.push_back({frame, button->action});
  }
  Accessibility below = addChildren(element);
  std::visit(Decorator{*this, decoration, element, frame, below}, *decoration.modifier);
  return below;
}

}  // namespace quorix::hosting
