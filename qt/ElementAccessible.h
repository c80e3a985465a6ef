#pragma once

#include <QAccessibleInterface>
#include <QPointer>

#include "qt/Surface.h"

namespace quorix::qt {

/// One element of a surface for assistive technology. Holds the element's place in reading order
/// and reads the latest display list on each call.
class ElementAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  ElementAccessible(QObject* owner, int index) : owner_(owner), index_(index) {}

  bool isValid() const override { return element() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override {
    const Surface* shown = surface();
    return shown ? shown->accessibleWindow() : nullptr;
  }
  QRect rect() const override {
    const render::AccessibilityElement* found = element();
    return found ? surface()->onScreen(found->frame) : QRect();
  }

  QString text(QAccessible::Text kind) const override {
    const render::AccessibilityElement* found = element();
    if (found && kind == QAccessible::Name) return QString::fromStdString(found->label);
    const bool isHint = kind == QAccessible::Description || kind == QAccessible::Help;
    return found && isHint ? QString::fromStdString(found->hint) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}

  QAccessible::Role role() const override {
    const render::AccessibilityElement* found = element();
    return found ? roleOf(found->role) : QAccessible::NoRole;
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    const render::AccessibilityElement* found = element();
    state.invalid = !found;
    if (!found) return state;
    const layout::Rect frame = found->frame;
    const bool acts = found->action != nullptr;
    const Surface& shown = *surface();
    const bool reachable = shown.isShown() && !shown.isCovered();
    state.invisible = !reachable;
    state.offscreen = shown.responder().isScrolledAway(frame);
    state.readOnly = !acts;
    state.focusable = acts && reachable;
    state.focused = acts && shown.responder().focusFrame() == frame;
    return state;
  }

  QAccessibleInterface* parent() const override {
    return owner_ ? QAccessible::queryAccessibleInterface(owner_) : nullptr;
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool acts = type == QAccessible::ActionInterface && element();
    return acts ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override {
    const render::AccessibilityElement* found = element();
    if (!found || !found->action) return {};
    return {pressAction(), setFocusAction()};
  }
  void doAction(const QString& name) override {
    // A reader may keep the interface of a view that has more elements by now.
    if (!element() || surface()->isCovered()) return;
    Surface& shown = *surface();
    if (name == setFocusAction() && shown.responder().focusElement(index_)) shown.takeFocus();
    if (name == pressAction()) shown.responder().activate(index_);  // may delete the surface
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  QObject* owner() const { return owner_; }
  /// Null while its owner is being deleted.
  Surface* surface() const { return Surface::of(owner_); }
  /// Null if there is none any more.
  virtual const render::AccessibilityElement* element() const {
    const Surface* shown = surface();
    if (!shown) return nullptr;
    const auto& elements = shown->responder().elements();
    const auto index = static_cast<std::size_t>(index_);
    return index < elements.size() ? &elements[index] : nullptr;
  }

 private:
  static QAccessible::Role roleOf(render::Role role) {
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

  QPointer<QObject> owner_;
  int index_;
};

}  // namespace quorix::qt
