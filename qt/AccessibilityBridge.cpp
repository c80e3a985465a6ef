#include "qt/AccessibilityBridge.h"

#include <QGuiApplication>
#include <QHash>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include "qt/ViewAccessible.h"

namespace quorix::qt {
namespace {

QHash<const QObject*, AccessibleSurface*>& surfaces() {
  static QHash<const QObject*, AccessibleSurface*> all;
  return all;
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  return AccessibilityBridge::surfaceOf(object) ? new ViewAccessible(object) : nullptr;
}

/// Makes the attached object that marks an item as accessible. Qt Quick names its type only to QML,
/// so the first call has QML load the module.
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

AccessibilityBridge* AccessibilityBridge::instance() {
  static QPointer<AccessibilityBridge> instance;
  if (!instance && QCoreApplication::instance()) {
    instance = new AccessibilityBridge(QCoreApplication::instance());
  }
  return instance;
}

AccessibilityBridge::AccessibilityBridge(QObject* application) : QObject(application) {
  QAccessible::installFactory(makeInterface);
  QAccessible::installActivationObserver(this);
}

AccessibilityBridge::~AccessibilityBridge() {
  QAccessible::removeActivationObserver(this);
  QAccessible::removeFactory(makeInterface);
}

void AccessibilityBridge::add(QObject& object, AccessibleSurface& surface) {
  surfaces().insert(&object, &surface);
}

void AccessibilityBridge::remove(QObject& object) { surfaces().remove(&object); }

AccessibleSurface* AccessibilityBridge::surfaceOf(const QObject* object) {
  return surfaces().value(object);
}

bool AccessibilityBridge::isActive() {
  return QAccessible::isActive() || instance()->active_;
}

void AccessibilityBridge::offer(QQuickItem& item) {
  if (!isActive()) return;
  if (const QQmlAttachedPropertiesFunc attach = attachAccessible()) {
    qmlAttachedPropertiesObject(&item, attach, true);
  }
}

void AccessibilityBridge::accessibilityActiveChanged(bool active) {
  active_ = active;
  if (active) emit began();
}

}  // namespace quorix::qt
