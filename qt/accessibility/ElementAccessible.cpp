#include "qt/accessibility/ElementAccessible.h"

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
  Surface* shown = surface();
  if (!shown) return nullptr;
  const auto& elements = shown->responder().elements();
  const auto index = static_cast<std::size_t>(index_);
  return index < elements.size() ? &elements[index] : nullptr;
}

bool ElementAccessible::isValid() const { return element() != nullptr; }

QWindow* ElementAccessible::window() const {
  Surface* shown = surface();
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
  state.invalid = !found;
  if (!found) return state;
  const layout::Rect frame = found->frame;
  const bool acts = found->action != nullptr;
  Surface& shown = *surface();
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
  const bool acts = type == QAccessible::ActionInterface && element();
  return acts ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList ElementAccessible::actionNames() const {
  const render::AccessibilityElement* found = element();
  if (!found || !found->action) return {};
  return {pressAction(), setFocusAction()};
}

void ElementAccessible::doAction(const QString& name) {
  // A reader may keep the interface of a view that has more elements by now.
  if (!element() || surface()->isCovered()) return;
  Surface& shown = *surface();
  if (name == setFocusAction() && shown.responder().focusElement(index_)) shown.takeFocus();
  if (name == pressAction()) shown.responder().activate(index_);  // may delete the surface
}

}  // namespace quorix::qt
