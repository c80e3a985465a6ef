#include "qt/accessibility/AccessibilityBridge.h"

#include <QGuiApplication>
#include <QHash>
#include <QPointer>

#include "qt/accessibility/ViewAccessible.h"

namespace quorix::qt {
namespace {

QHash<const QObject*, AccessibleSurface*>& surfaces() {
  static auto& all = *new QHash<const QObject*, AccessibleSurface*>;  // views may outlive statics
  return all;
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  return AccessibilityBridge::surfaceOf(object) ? new ViewAccessible(object) : nullptr;
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

void AccessibilityBridge::coverChanged() {
  if (!isActive()) return;
  for (const QObject* object : surfaces().keys()) {
    ViewAccessible::coverChanged(const_cast<QObject&>(*object));
  }
}

bool AccessibilityBridge::isActive() { return QAccessible::isActive() || instance()->active_; }

void AccessibilityBridge::accessibilityActiveChanged(bool active) {
  active_ = active;
  if (active) emit began();
}

}  // namespace quorix::qt
