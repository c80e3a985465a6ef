#include "qt/accessibility/ViewAccessible.h"

#include <algorithm>

namespace quorix::qt {
namespace {

/// The interface of `owner`, made on first use; null while no assistive technology listens.
ViewAccessible* listening(QObject& owner) {
  if (!Surface::areRead()) return nullptr;
  return dynamic_cast<ViewAccessible*>(QAccessible::queryAccessibleInterface(&owner));
}

void say(QAccessible::Event what, QAccessibleInterface* about) {
  QAccessibleEvent event(about, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

ViewAccessible::ViewAccessible(QObject* owner)
    : ElementAccessible(owner, 0), told_(toTell()), covered_(surface()->isCovered()) {}

ViewAccessible::~ViewAccessible() {
  for (const QAccessible::Id id : elements_) QAccessible::deleteAccessibleInterface(id);
}

const render::AccessibilityElement* ViewAccessible::element() const {
  const Surface* shown = surface();
  if (!shown || shown->isDialog()) return nullptr;
  const auto& elements = shown->responder().elements();
  return elements.size() == 1 ? &elements.front() : nullptr;
}

void ViewAccessible::syncChildren() const {
  Surface* shown = surface();
  const std::size_t count = shown && !element() ? shown->responder().elements().size() : 0;
  while (elements_.size() > count) {
    QAccessible::deleteAccessibleInterface(elements_.back());
    elements_.pop_back();
  }
  while (elements_.size() < count) {
    elements_.push_back(QAccessible::registerAccessibleInterface(
        new ElementAccessible(object(), static_cast<int>(elements_.size()))));
  }
}

void ViewAccessible::sceneChanged(QObject& owner) {
  if (ViewAccessible* self = listening(owner)) self->update();
}

void ViewAccessible::focusChanged(QObject& owner, Qt::ConnectionType when) {
  if (!Surface::areRead()) return;
  const auto sayFocus = [&owner] {
    ViewAccessible* self = listening(owner);
    if (!self) return;
    QAccessibleInterface* focused = self->focusChild();
    say(QAccessible::Focus, focused ? focused : self);
  };
  QMetaObject::invokeMethod(&owner, sayFocus, when);
}

// Screen readers cache: without Hide they would go on reading what is behind a sheet.
void ViewAccessible::coverChanged(QObject& owner) {
  ViewAccessible* self = listening(owner);
  const Surface* shown = self ? self->surface() : nullptr;
  if (!shown || std::exchange(self->covered_, shown->isCovered()) == self->covered_) return;
  if (!shown->isShown()) return;
  const auto event = self->covered_ ? QAccessible::ObjectHide : QAccessible::ObjectShow;
  say(event, self);
  if (self->element()) return;
  for (std::size_t i = 0; i < self->told_.size(); ++i) self->tell(event, i);
}

std::vector<ViewAccessible::Told> ViewAccessible::toTell() const {
  std::vector<Told> now;
  for (const auto& element : surface()->responder().elements()) {
    now.push_back({element.label, element.hint});
  }
  return now;
}

void ViewAccessible::update() {
  const std::vector<Told> before = std::exchange(told_, toTell());
  const std::size_t common = std::min(before.size(), told_.size());
  for (std::size_t i = told_.size(); i < elements_.size(); ++i) {
    say(QAccessible::ObjectHide, QAccessible::accessibleInterface(elements_[i]));
  }
  const bool wasSole = before.size() == 1 && !surface()->isDialog();
  if (wasSole != (element() != nullptr)) say(QAccessible::ObjectReorder, this);
  syncChildren();
  for (std::size_t i = common; i < told_.size(); ++i) tell(QAccessible::ObjectShow, i);
  for (std::size_t i = 0; i < common; ++i) {
    if (before[i].label != told_[i].label) tell(QAccessible::NameChanged, i);
    if (before[i].hint != told_[i].hint) tell(QAccessible::DescriptionChanged, i);
  }
}

void ViewAccessible::tell(QAccessible::Event event, std::size_t index) {
  if (element()) return say(event, this);
  if (index < elements_.size()) say(event, QAccessible::accessibleInterface(elements_[index]));
}

QRect ViewAccessible::rect() const {
  Surface* shown = surface();
  return shown ? shown->onScreen() : QRect();
}

QString ViewAccessible::text(QAccessible::Text kind) const {
  if (element()) return ElementAccessible::text(kind);
  Surface* shown = surface();
  if (!shown || !shown->isDialog() || kind != QAccessible::Name) return {};
  // A dialog is named after its first text without an action, or else after its page.
  for (const auto& element : shown->responder().elements()) {
    if (!element.action) return QString::fromStdString(element.label);
  }
  const auto pages = views();
  return pages.empty() ? QString() : pages.front()->text(kind);
}

QAccessible::Role ViewAccessible::role() const {
  if (element()) return ElementAccessible::role();
  Surface* shown = surface();
  return shown && shown->isDialog() ? QAccessible::Dialog : QAccessible::Grouping;
}

QAccessible::State ViewAccessible::state() const {
  const Surface* shown = surface();
  if (!shown || element()) return ElementAccessible::state();
  QAccessible::State state;
  state.invisible = !shown->isShown() || shown->isCovered();
  state.modal = shown->isDialog() && !shown->isCovered();
  state.active = state.modal && shown->isShown();
  return state;
}

QAccessibleInterface* ViewAccessible::focusChild() const {
  const auto all = children();
  const auto focused = std::ranges::find_if(all, [](auto* one) { return one->state().focused; });
  return focused == all.end() ? nullptr : *focused;
}

QAccessibleInterface* ViewAccessible::parent() const {
  Surface* shown = surface();
  QObject* above = shown ? shown->accessibleParent() : nullptr;
  return above ? QAccessible::queryAccessibleInterface(above) : nullptr;
}

std::vector<QAccessibleInterface*> ViewAccessible::views() const {
  std::vector<QAccessibleInterface*> all;
  Surface* shown = surface();
  if (!shown) return all;
  for (QObject* view : shown->accessibleViews()) {
    if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(view)) {
      all.push_back(known);
    }
  }
  return all;
}

std::vector<QAccessibleInterface*> ViewAccessible::children() const {
  syncChildren();
  std::vector<QAccessibleInterface*> all;
  for (const auto id : elements_) all.push_back(QAccessible::accessibleInterface(id));
  for (auto* view : views()) all.push_back(view);
  return all;
}

QAccessibleInterface* ViewAccessible::child(int index) const {
  const auto all = children();
  const auto at = static_cast<std::size_t>(index);
  return at < all.size() ? all[at] : nullptr;
}

QAccessibleInterface* ViewAccessible::childAt(int x, int y) const {
  const auto all = children();
  const auto found = std::ranges::find_if(
      all, [&](auto* one) { return one->isValid() && one->rect().contains(x, y); });
  return found == all.end() ? nullptr : *found;
}

int ViewAccessible::childCount() const { return static_cast<int>(children().size()); }

int ViewAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto all = children();
  const auto found = std::ranges::find(all, child);
  return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

}  // namespace quorix::qt
