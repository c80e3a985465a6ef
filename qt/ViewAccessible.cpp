#include "qt/ViewAccessible.h"

#include <QWindow>
#include <algorithm>

#include "qt/AccessibilityBridge.h"

namespace quorix::qt {
namespace {

/// The interface of `owner`, made when it is asked for the first time, if anybody listens.
ViewAccessible* listening(QObject& owner) {
  if (!AccessibilityBridge::isActive()) return nullptr;
  return dynamic_cast<ViewAccessible*>(QAccessible::queryAccessibleInterface(&owner));
}

}  // namespace

ViewAccessible::ViewAccessible(QObject* owner) : QAccessibleObject(owner), sole_(owner, 0) {
  for (const auto& element : surface()->responder().elements()) {
    told_.push_back({element.label, element.hint});
  }
  covered_ = surface()->isCovered();
}

ViewAccessible::~ViewAccessible() {
  for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
}

AccessibleSurface* ViewAccessible::surface() const {
  return AccessibilityBridge::surfaceOf(object());
}

bool ViewAccessible::isSoleElement() const {
  AccessibleSurface* shown = surface();
  return shown && !shown->isDialog() && shown->responder().elements().size() == 1;
}

void ViewAccessible::syncChildren() const {
  AccessibleSurface* shown = surface();
  const std::size_t count =
      shown && !isSoleElement() ? shown->responder().elements().size() : std::size_t{0};
  while (children_.size() > count) {
    QAccessible::deleteAccessibleInterface(children_.back());
    children_.pop_back();
  }
  while (children_.size() < count) {
    children_.push_back(QAccessible::registerAccessibleInterface(
        new ElementAccessible(object(), static_cast<int>(children_.size()))));
  }
}

void ViewAccessible::sceneChanged(QObject& owner) {
  if (ViewAccessible* self = listening(owner)) self->update();
}

void ViewAccessible::focusChanged(QObject& owner, Qt::ConnectionType when) {
  if (!AccessibilityBridge::isActive()) return;
  const auto say = [&owner] {
    ViewAccessible* self = listening(owner);
    if (!self) return;
    QAccessibleInterface* focused = self->focusChild();
    QAccessibleEvent event(focused ? focused : self, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
  };
  QMetaObject::invokeMethod(&owner, say, when);
}

// A reader keeps what it was told: it would go on reading what lies behind a sheet.
void ViewAccessible::coverChanged(QObject& owner) {
  ViewAccessible* self = listening(owner);
  const AccessibleSurface* shown = self ? self->surface() : nullptr;
  if (!shown || std::exchange(self->covered_, shown->isCovered()) == self->covered_) return;
  if (!shown->isShown()) return;
  const auto event = self->covered_ ? QAccessible::ObjectHide : QAccessible::ObjectShow;
  QAccessibleEvent said(self, event);
  QAccessible::updateAccessibility(&said);
  if (self->isSoleElement()) return;
  for (std::size_t i = 0; i < self->told_.size(); ++i) self->tell(event, i);
}

void ViewAccessible::update() {
  std::vector<Told> now;
  for (const auto& element : surface()->responder().elements()) {
    now.push_back({element.label, element.hint});
  }
  const std::vector<Told> before = std::exchange(told_, std::move(now));
  const std::size_t common = std::min(before.size(), told_.size());
  for (std::size_t i = told_.size(); i < before.size(); ++i) tell(QAccessible::ObjectHide, i);
  const bool wasSole = before.size() == 1;
  if (wasSole != isSoleElement()) {
    QAccessibleEvent event(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
  }
  syncChildren();
  for (std::size_t i = common; i < told_.size(); ++i) tell(QAccessible::ObjectShow, i);
  for (std::size_t i = 0; i < common; ++i) {
    if (before[i].label != told_[i].label) tell(QAccessible::NameChanged, i);
    if (before[i].hint != told_[i].hint) tell(QAccessible::DescriptionChanged, i);
  }
}

void ViewAccessible::tell(QAccessible::Event event, std::size_t index) const {
  QAccessibleInterface* about = const_cast<ViewAccessible*>(this);
  if (!isSoleElement()) {
    if (index >= children_.size()) return;
    about = QAccessible::accessibleInterface(children_[index]);
  }
  QAccessibleEvent said(about, event);
  QAccessible::updateAccessibility(&said);
}

QWindow* ViewAccessible::window() const {
  AccessibleSurface* shown = surface();
  return shown ? shown->accessibleWindow() : nullptr;
}

QRect ViewAccessible::rect() const {
  AccessibleSurface* shown = surface();
  return shown ? shown->onScreen() : QRect();
}

QString ViewAccessible::text(QAccessible::Text kind) const {
  if (isSoleElement()) return sole_.text(kind);
  AccessibleSurface* shown = surface();
  if (!shown || !shown->isDialog() || kind != QAccessible::Name) return {};
  // A dialog bears the name of the first text in it, or else of its page.
  for (const auto& element : shown->responder().elements()) {
    if (!element.action) return QString::fromStdString(element.label);
  }
  const auto pages = views();
  return pages.empty() ? QString() : pages.front()->text(kind);
}

QAccessible::Role ViewAccessible::role() const {
  if (isSoleElement()) return sole_.role();
  AccessibleSurface* shown = surface();
  return shown && shown->isDialog() ? QAccessible::Dialog : QAccessible::Grouping;
}

QAccessible::State ViewAccessible::state() const {
  if (isSoleElement()) return sole_.state();
  QAccessible::State state;
  AccessibleSurface* shown = surface();
  if (!shown) {
    state.invalid = true;
    return state;
  }
  state.invisible = !shown->isShown() || shown->isCovered();
  state.modal = shown->isDialog() && !shown->isCovered();
  state.active = state.modal && shown->isShown();
  return state;
}

QAccessibleInterface* ViewAccessible::focusChild() const {
  AccessibleSurface* shown = surface();
  if (!shown || isSoleElement()) return nullptr;
  for (int i = 0; i < childCount(); ++i) {
    QAccessibleInterface* element = child(i);
    if (element->state().focused) return element;
  }
  return nullptr;
}

QAccessibleInterface* ViewAccessible::parent() const {
  AccessibleSurface* shown = surface();
  QObject* above = shown ? shown->accessibleParent() : nullptr;
  return above ? QAccessible::queryAccessibleInterface(above) : nullptr;
}

std::vector<QAccessibleInterface*> ViewAccessible::views() const {
  std::vector<QAccessibleInterface*> all;
  AccessibleSurface* shown = surface();
  if (!shown) return all;
  for (QObject* view : shown->accessibleViews()) {
    if (QAccessibleInterface* known = QAccessible::queryAccessibleInterface(view)) {
      all.push_back(known);
    }
  }
  return all;
}

QAccessibleInterface* ViewAccessible::child(int index) const {
  syncChildren();
  const auto at = static_cast<std::size_t>(index);
  if (at < children_.size()) return QAccessible::accessibleInterface(children_[at]);
  const auto others = views();
  return at - children_.size() < others.size() ? others[at - children_.size()] : nullptr;
}

int ViewAccessible::childCount() const {
  syncChildren();
  return static_cast<int>(children_.size() + views().size());
}

int ViewAccessible::indexOfChild(const QAccessibleInterface* child) const {
  syncChildren();
  for (std::size_t i = 0; i < children_.size(); ++i) {
    if (QAccessible::accessibleInterface(children_[i]) == child) return static_cast<int>(i);
  }
  const auto others = views();
  const auto found = std::find(others.begin(), others.end(), child);
  if (found != others.end()) {
    return static_cast<int>(children_.size()) + static_cast<int>(found - others.begin());
  }
  return -1;
}

void* ViewAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::ActionInterface || !isSoleElement()) return nullptr;
  return static_cast<QAccessibleActionInterface*>(this);
}

QStringList ViewAccessible::actionNames() const {
  return isSoleElement() ? sole_.actionNames() : QStringList();
}

void ViewAccessible::doAction(const QString& name) {
  if (isSoleElement()) sole_.doAction(name);
}

}  // namespace quorix::qt
