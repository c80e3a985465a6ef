#include "qt/quick/QuickAccessibleSurface.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "qt/WindowScene.h"

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

void QuickAccessibleSurface::offer() {
  if (!areRead()) return;
  if (const QQmlAttachedPropertiesFunc attach = attachAccessible()) {
    qmlAttachedPropertiesObject(&item_, attach, true);
  }
}

QRect QuickAccessibleSurface::onScreen(const layout::Rect& frame) const {
  const QRectF local(frame.left(), frame.top(), frame.size.width, frame.size.height);
  const QSizeF size = item_.mapRectToScene(local).size();
  return QRectF(item_.mapToGlobal(local.topLeft()), size).toRect();
}

QObject* QuickAccessibleSurface::accessibleParent() const {
  QQuickWindow* window = item_.window();
  for (QQuickItem* parent = item_.parentItem(); parent; parent = parent->parentItem()) {
    if (window && parent == window->contentItem()) return window;
    if (QAccessible::queryAccessibleInterface(parent)) return parent;
  }
  return window;
}

bool QuickAccessibleSurface::liesOver(const QQuickItem& sheet, const QQuickItem* item) {
  while (item && item->parentItem() != sheet.parentItem()) item = item->parentItem();
  return item && item != &sheet && item->z() <= sheet.z();
}

bool QuickAccessibleSurface::isCovered() const {
  const QQuickItem* sheet = itemOf(WindowScene::topmostOf(item_.window()));
  return sheet && liesOver(*sheet, &item_);
}

}  // namespace quorix::qt
