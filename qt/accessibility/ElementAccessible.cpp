#include "qt/accessibility/ElementAccessible.h"

#include <QWindow>

#include "qt/accessibility/AccessibilityBridge.h"

namespace quorix::qt {
namespace {

QAccessible::Role roleOf(render::Role role) {
  switch (role) {
    case render::Role::staticText:
      return QAccessible::StaticText;
    case render::Role::button:
      return QAccessible::Button;
    case render::Role::heading:
      return QAccessible::Heading;
    case render::Role::image:
      return QAccessible::Graphic;
    case render::Role::link:
      return QAccessible::Link;
  }
  return QAccessible::StaticText;
}

}  // namespace

const render::AccessibilityElement* ElementAccessible::element() const {
  AccessibleSurface* shown = surface();
  if (!shown) return nullptr;
  const auto& elements = shown->responder().elements();
  const auto index = static_cast<std::size_t>(index_);
  return index < elements.size() ? &elements[index] : nullptr;
}

bool ElementAccessible::isValid() const { return element() != nullptr; }

QWindow* ElementAccessible::window() const {
  AccessibleSurface* shown = surface();
  return shown ? shown->accessibleWindow() : nullptr;
}

QRect ElementAccessible::rect() const {
  const render::AccessibilityElement* found = element();
  return found ? surface()->onScreen(found->frame) : QRect();
}

QString ElementAccessible::text(QAccessible::Text kind) const {
  const render::AccessibilityElement* found = element();
  if (!found) return {};
  switch (kind) {
    case QAccessible::Name:
      return QString::fromStdString(found->label);
    case QAccessible::Description:
    case QAccessible::Help:
      return QString::fromStdString(found->hint);
    default:
      return {};
  }
}

QAccessible::Role ElementAccessible::role() const {
  const render::AccessibilityElement* found = element();
  return found ? roleOf(found->role) : QAccessible::NoRole;
}

QAccessible::State ElementAccessible::state() const {
  QAccessible::State state;
  const render::AccessibilityElement* found = element();
  if (!found) {
    state.invalid = true;
    return state;
  }
  const layout::Rect frame = found->frame;
  const bool acts = found->action != nullptr;
  AccessibleSurface& shown = *surface();
  const bool reachable = shown.isShown() && !shown.isCovered();
  state.invisible = !reachable;
  state.offscreen = shown.responder().isScrolledAway(frame);
  state.readOnly = !acts;
  state.focusable = acts && reachable;
  state.focused = acts && shown.responder().focusFrame() == frame;
  return state;
}

QAccessibleInterface* ElementAccessible::parent() const {
  return owner_ ? QAccessible::queryAccessibleInterface(owner_) : nullptr;
}

void* ElementAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::ActionInterface) return nullptr;
  return static_cast<QAccessibleActionInterface*>(this);
}

QStringList ElementAccessible::actionNames() const {
  const render::AccessibilityElement* found = element();
  if (!found || !found->action) return {};
  return {pressAction(), setFocusAction()};
}

void ElementAccessible::doAction(const QString& name) {
  AccessibleSurface* shown = surface();
  if (!shown || shown->isCovered()) return;
  if (name == pressAction()) shown->responder().activate(index_);
  if (name == setFocusAction() && shown->responder().focusElement(index_)) shown->takeFocus();
}

}  // namespace quorix::qt
