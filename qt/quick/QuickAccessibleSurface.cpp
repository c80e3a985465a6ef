#include "qt/quick/QuickAccessibleSurface.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <utility>

#include "qt/Conversions.h"
#include "qt/HostedWindow.h"
#include "qt/quick/AttachedObject.h"

namespace quorix::qt {

void QuickAccessibleSurface::offer() {
  const char* const type = "QQuickAccessibleAttached*";
  static bool tried = false;
  if (!areRead() || attachedObject(item(), type) || std::exchange(tried, true)) return;
  QQmlEngine engine;
  QQmlComponent component(&engine);
  component.setData("import QtQuick\nItem { Accessible.name: '' }", QUrl());
  delete component.create();
  attachedObject(item(), type);
}

QRect QuickAccessibleSurface::onScreen(const layout::Rect& frame) const {
  const QRectF local = toRect(frame);
  const QSizeF size = item().mapRectToScene(local).size();
  return QRectF(item().mapToGlobal(local.topLeft()), size).toRect();
}

QObject* QuickAccessibleSurface::accessibleParent() const {
  QQuickWindow* window = item().window();
  for (QQuickItem* parent = item().parentItem(); parent; parent = parent->parentItem()) {
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
  const QQuickItem* sheet = itemOf(HostedWindow::topmostOf(item().window()));
  return sheet && liesOver(*sheet, &item());
}

}  // namespace quorix::qt
