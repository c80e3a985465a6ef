#include "qt/quick/QuickAccessibleSurface.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "qt/accessibility/AccessibilityBridge.h"
#include "qt/quick/SheetItem.h"

namespace quorix::qt {
namespace {

/// The function that attaches the object which marks an item as accessible. Only QML knows its
/// type, so the first call makes QML load the module.
QQmlAttachedPropertiesFunc attachAccessible() {
  static const QQmlAttachedPropertiesFunc attach = [] {
    const char* const type = "QQuickAccessibleAttached*";
    if (!QMetaType::fromName(type).metaObject()) {
      QQmlEngine engine;
      QQmlComponent component(&engine);
      component.setData("import QtQuick\nItem { Accessible.name: '' }", QUrl());
      delete component.create();
    }
    const QMetaObject* known = QMetaType::fromName(type).metaObject();
    return known ? qmlAttachedPropertiesFunction(nullptr, known) : nullptr;
  }();
  return attach;
}

}  // namespace

QQuickItem* QuickAccessibleSurface::itemOf(const hosting::Responder* responder) {
  const auto* surface = dynamic_cast<const QuickAccessibleSurface*>(responder);
  return surface ? &surface->item_ : nullptr;
}

void QuickAccessibleSurface::offer() {
  if (!AccessibilityBridge::isActive()) return;
  if (const QQmlAttachedPropertiesFunc attach = attachAccessible()) {
    qmlAttachedPropertiesObject(&item_, attach, true);
  }
}

void QuickAccessibleSurface::takeFocus() { item_.forceActiveFocus(Qt::OtherFocusReason); }

QRect QuickAccessibleSurface::onScreen(const layout::Rect& frame) const {
  const QRectF local(frame.left(), frame.top(), frame.size.width, frame.size.height);
  const QSizeF size = item_.mapRectToScene(local).size();
  return QRectF(item_.mapToGlobal(local.topLeft()), size).toRect();
}

QRect QuickAccessibleSurface::onScreen() const {
  return onScreen({{}, {item_.width(), item_.height()}});
}

QWindow* QuickAccessibleSurface::accessibleWindow() const { return item_.window(); }

QObject* QuickAccessibleSurface::accessibleParent() const {
  QQuickWindow* window = item_.window();
  for (QQuickItem* parent = item_.parentItem(); parent; parent = parent->parentItem()) {
    if (window && parent == window->contentItem()) return window;
    if (QAccessible::queryAccessibleInterface(parent)) return parent;
  }
  return window;
}

bool QuickAccessibleSurface::isShown() const {
  return item_.isVisible() && item_.window() && item_.window()->isVisible();
}

bool QuickAccessibleSurface::isCovered() const {
  const SheetItem* sheet = item_.window() ? SheetItem::topmost(*item_.window()) : nullptr;
  return sheet && sheet->liesOver(&item_);
}

}  // namespace quorix::qt
