#include "tests/qt/QuickScreen.h"

#include <QPointingDevice>
#include <QQmlComponent>
#include <QTest>

#include "qt/AccessibilityBridge.h"
#include "qt/Engine.h"

namespace quorix::testing {
namespace {

/// Depth first; a subtree that is invisible is out of reach with all that is in it.
QAccessibleInterface* findIn(QAccessibleInterface* root, const QString& name) {
  if (!root || root->state().invisible) return nullptr;
  if (root->text(QAccessible::Name) == name && root->role() != QAccessible::Dialog) return root;
  for (int i = 0; i < root->childCount(); ++i) {
    if (QAccessibleInterface* found = findIn(root->child(i), name)) return found;
  }
  return nullptr;
}

QPointingDevice& touchScreen() {
  static QPointingDevice* device = QTest::createTouchDevice();
  return *device;
}

}  // namespace

QuickScreen::QuickScreen() : window_(std::make_unique<QQuickWindow>()) {
  qt::installEngine();
  qt::AccessibilityBridge::instance();  // hears the next line; the platform itself keeps no such
                                        // flag
  QAccessible::setActive(true);
  window_->resize(360, 600);
  window_->show();
  if (!QTest::qWaitForWindowExposed(window_.get())) qFatal("The window does not come up");
  window_->requestActivate();
  if (!QTest::qWaitForWindowActive(window_.get())) qFatal("The window does not become active");
}

QuickScreen::~QuickScreen() = default;

qt::ViewItem* QuickScreen::add(swiftui::View view, QRectF place) {
  auto* item = new qt::ViewItem(std::move(view), window_->contentItem());
  item->setMotion(false);
  item->setPosition(place.topLeft());
  item->setWidth(place.width());
  item->setHeight(place.height() > 0 ? place.height() : item->implicitHeight());
  settle();
  return item;
}

QQuickItem* QuickScreen::addFocusable() {
  auto* item = new QQuickItem(window_->contentItem());
  item->setSize({10, 10});
  item->setActiveFocusOnTab(true);
  item->forceActiveFocus();
  return item;
}

QQuickItem* QuickScreen::addQml(const QByteArray& source) {
  qmlRegisterType<qt::ViewItem>("Shop", 1, 0, "Row");
  QQmlComponent component(&engine_);
  component.setData("import QtQuick\nimport QtQuick.Layouts\nimport Shop\n" + source, {});
  auto* item = qobject_cast<QQuickItem*>(component.create());
  if (!item) qFatal("%s", qPrintable(component.errorString()));
  item->setParent(window_->contentItem());
  item->setParentItem(window_->contentItem());
  return item;
}

void QuickScreen::settle() {
  int frames = 0;
  const auto counting =
      QObject::connect(window_.get(), &QQuickWindow::frameSwapped, [&] { ++frames; });
  for (int quiet = 0; quiet < 2;) {
    const int before = frames;
    QTest::qWait(30);
    quiet = frames == before ? quiet + 1 : 0;
  }
  QObject::disconnect(counting);
}

QAccessibleInterface* QuickScreen::find(const QString& name) {
  return findIn(QAccessible::queryAccessibleInterface(window_.get()), name);
}

QPoint QuickScreen::centreOf(const QString& name) {
  QAccessibleInterface* found = find(name);
  if (!found) qFatal("Nothing on screen is called %s", qUtf8Printable(name));
  return window_->mapFromGlobal(found->rect().center());
}

void QuickScreen::click(const QString& name) { clickAt(centreOf(name)); }

void QuickScreen::clickAt(QPoint point) {
  QTest::mouseClick(window_.get(), Qt::LeftButton, {}, point);
  settle();
}

void QuickScreen::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(window_.get(), key, modifiers);
  settle();
}

void QuickScreen::drag(QPoint from, QPoint to, int milliseconds, bool byTouch) {
  constexpr int steps = 10;
  const auto at = [&](int step) { return from + (to - from) * step / steps; };
  if (byTouch) QTest::touchEvent(window_.get(), &touchScreen()).press(1, from);
  if (!byTouch) QTest::mousePress(window_.get(), Qt::LeftButton, {}, from);
  for (int step = 1; step <= steps; ++step) {
    if (byTouch) QTest::qWait(milliseconds / steps);
    if (byTouch) QTest::touchEvent(window_.get(), &touchScreen()).move(1, at(step));
    if (!byTouch) QTest::mouseMove(window_.get(), at(step), milliseconds / steps);
  }
  if (byTouch) QTest::touchEvent(window_.get(), &touchScreen()).release(1, to);
  if (!byTouch) QTest::mouseRelease(window_.get(), Qt::LeftButton, {}, to);
  settle();
}

QImage QuickScreen::grab() { return window_->grabWindow(); }

}  // namespace quorix::testing
