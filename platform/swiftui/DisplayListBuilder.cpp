#include "platform/swiftui/DisplayListBuilder.h"

#include <utility>

#include "platform/text/TextBound.h"

namespace quorix::swiftui {

using render::AccessibilityElement;
using render::Role;

DisplayListBuilder::DisplayListBuilder(Evaluation& evaluation, const Environment& settings,
                                       text::TextEngine& engine, layout::Size area)
    : environment(settings),
      evaluation_(evaluation),
      display_{settings.appearance, settings.direction, settings.scale, settings.language},
      engine_(engine),
      grid_(settings.scale),
      width_(area.width) {
  list.size = area;
  list.appearance = settings.appearance;
  list.items.reserve(evaluation.items);
  list.accessibility.reserve(evaluation.items);
  list.hitAreas.reserve(evaluation.hitAreas);
}

void DisplayListBuilder::build() {
  evaluation_.root->rules->show(*this, *evaluation_.root);
  // Drop elements with neither a text nor an action, such as images without a name.
  std::erase_if(list.accessibility, [](const AccessibilityElement& element) {
    return !isNamed(element) && !element.action;
  });
  for (AccessibilityElement& element : list.accessibility) {
    element.label = text::bounded(std::move(element.label));
    element.hint = text::bounded(std::move(element.hint));
  }
}

void DisplayListBuilder::showChildren(const Element& element) {
  for (const Element* child = element.children.first; child; child = child->next) {
    child->rules->show(*this, *child);
  }
}

layout::Rect DisplayListBuilder::mirrored(const layout::Rect& frame) const {
  if (environment.direction == layout::LayoutDirection::leftToRight) return frame;
  return {{width_ - frame.right(), frame.top()}, frame.size};
}

void DisplayListBuilder::host(render::HostedContent& content, const Element& element) {
  const layout::Rect frame = onPixels(element.frame);
  list.append(content.scene(frame.size, display_, engine_), frame.origin);
}

AccessibilityElement* DisplayListBuilder::describe(Role role, const layout::Rect& frame) {
  AccessibilityElement& element = list.accessibility.emplace_back();
  element.frame = frame;
  element.role = role;
  return unnamed_ == 0 ? &element : nullptr;
}

void DisplayListBuilder::showChildrenUnnamed(const Element& element) {
  ++unnamed_;
  showChildren(element);
  --unnamed_;
}

bool DisplayListBuilder::isNamed(const AccessibilityElement& element) {
  return !element.label.empty() || !element.hint.empty();
}

void DisplayListBuilder::act(AccessibilityElement& element, const foundation::Action& action) {
  if (element.action) return;
  element.action = action;
  if (element.role != Role::link) element.role = Role::button;
}

}  // namespace quorix::swiftui
