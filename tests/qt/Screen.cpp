#include "tests/qt/Screen.h"

#include <QPointingDevice>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>

#include "qt/Engine.h"
#include "qt/Surface.h"

namespace quorix::testing {
namespace {

/// Searches depth first. Skips invisible subtrees.
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

Screen::Screen() {
  // QTest's mouse and fingers have clocks of their own. The mouse's is set days ahead, so that no
  // finger's press is taken for the second of a double tap after a click.
  QTest::lastMouseTimestamp = std::max(QTest::lastMouseTimestamp, 1'000'000'000);
  qt::installEngine();
  qt::Surface::areRead();  // observes the next call, which the platform ignores
  QAccessible::setActive(true);
}

void Screen::waitUntilActive() {
  if (!QTest::qWaitForWindowExposed(&window())) qFatal("The window does not come up");
  window().requestActivate();
  if (!QTest::qWaitForWindowActive(&window())) qFatal("The window does not become active");
}

void Screen::settle() {
  for (int quiet = 0; quiet < 2;) {
    const int before = frames_;
    QTest::qWait(30);
    quiet = frames_ == before ? quiet + 1 : 0;
  }
}

QAccessibleInterface* Screen::find(const QString& name) {
  return findIn(QAccessible::queryAccessibleInterface(&accessibleRoot()), name);
}

QPoint Screen::centerOf(const QString& name) {
  QAccessibleInterface* found = find(name);
  if (!found) qFatal("Nothing on screen is called %s", qUtf8Printable(name));
  return window().mapFromGlobal(found->rect().center());
}

void Screen::click(const QString& name) { clickAt(centerOf(name)); }

void Screen::clickAt(QPoint point) {
  QTest::mouseClick(&window(), Qt::LeftButton, {}, point);
  settle();
}

void Screen::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&window(), key, modifiers);
  settle();
}

void Screen::act(const QString& name, const QString& action) {
  find(name)->actionInterface()->doAction(action);
  settle();
}

void Screen::wheel(QPoint at, QPoint pixels, QPoint angle, Qt::ScrollPhase phase) {
  QWheelEvent event(at, window().mapToGlobal(at), pixels, angle, Qt::NoButton, {}, phase, false);
  QCoreApplication::sendEvent(&window(), &event);
}

void Screen::drag(QPoint from, QPoint to, int milliseconds, bool byTouch) {
  constexpr int steps = 10;
  const auto at = [&](int step) { return from + (to - from) * step / steps; };
  if (byTouch) QTest::touchEvent(&window(), &touchScreen()).press(1, from);
  if (!byTouch) QTest::mousePress(&window(), Qt::LeftButton, {}, from);
  for (int step = 1; step <= steps; ++step) {
    if (byTouch) QTest::qWait(milliseconds / steps);
    if (byTouch) QTest::touchEvent(&window(), &touchScreen()).move(1, at(step));
    if (!byTouch) QTest::mouseMove(&window(), at(step), milliseconds / steps);
  }
  if (byTouch) QTest::touchEvent(&window(), &touchScreen()).release(1, to);
  if (!byTouch) QTest::mouseRelease(&window(), Qt::LeftButton, {}, to);
  settle();
}

}  // namespace quorix::testing
