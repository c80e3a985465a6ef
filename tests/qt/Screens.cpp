#include "tests/qt/Screens.h"

#include <QApplication>
#include <QPointingDevice>
#include <QQmlComponent>
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
  // Quiet for 60 ms: on a busy machine a frame of the render thread is that late.
  for (int quiet = 0; quiet < 12;) {
    const int before = frames_;
    QTest::qWait(5);
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
    if (byTouch) QTest::qWait(1);
    if (byTouch) QTest::touchEvent(&window(), &touchScreen()).move(1, at(step));
    if (!byTouch) QTest::mouseMove(&window(), at(step), milliseconds / steps);
  }
  if (byTouch) QTest::touchEvent(&window(), &touchScreen()).release(1, to);
  if (!byTouch) QTest::mouseRelease(&window(), Qt::LeftButton, {}, to);
  settle();
}

QuickScreen::QuickScreen() : window_(std::make_unique<QQuickWindow>()) {
  QObject::connect(window_.get(), &QQuickWindow::frameSwapped, window_.get(),
                   [this] { countFrame(); });
  window_->resize(kSize);
  window_->show();
  waitUntilActive();
}

qt::ViewItem* QuickScreen::add(swiftui::View view, QRectF place) {
  auto* item = new qt::ViewItem(std::move(view), window_->contentItem());
  item->setMotion(false);
  item->setPosition(place.topLeft());
  item->setWidth(place.width());
  item->setHeight(place.height() > 0 ? place.height() : item->implicitHeight());
  settle();
  return item;
}

void QuickScreen::adopt(qt::ViewItem* item) {
  item->setParentItem(window_->contentItem());
  item->setParent(window_->contentItem());
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
  if (!item) qFatal("%s", qUtf8Printable(component.errorString()));
  item->setParent(window_->contentItem());
  item->setParentItem(window_->contentItem());
  return item;
}

QObject& QuickScreen::addBelow() {
  auto* area = new QQuickItem(window_->contentItem());
  area->setSize(window_->size());
  area->setAcceptedMouseButtons(Qt::AllButtons);
  area->setAcceptHoverEvents(true);
  return *area;
}

WidgetScreen::WidgetScreen() : host_(std::make_unique<QWidget>()) {
  qApp->installEventFilter(this);
  host_->resize(kSize);
  host_->show();
  waitUntilActive();
}

WidgetScreen::~WidgetScreen() = default;

bool WidgetScreen::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint && host_) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget->window() == host_.get()) countFrame();
  }
  return false;
}

qt::ViewWidget* WidgetScreen::add(swiftui::View view, QRectF place) {
  auto* widget = new qt::ViewWidget(std::move(view), host_.get());
  widget->setMotion(false);
  const QRect fixed = place.toRect();
  widget->setGeometry(fixed.x(), fixed.y(), fixed.width(),
                      place.height() > 0 ? fixed.height() : widget->heightForWidth(fixed.width()));
  widget->show();
  settle();
  return widget;
}

void WidgetScreen::adopt(qt::ViewWidget* widget) {
  widget->setParent(host_.get());
  widget->show();
}

QWidget* WidgetScreen::addFocusable() {
  auto* widget = new QWidget(host_.get());
  widget->resize(10, 10);
  widget->setFocusPolicy(Qt::StrongFocus);
  widget->show();
  widget->setFocus();
  return widget;
}

QObject& WidgetScreen::addBelow() {
  auto* area = new QWidget(host_.get());
  area->setMouseTracking(true);
  area->setAttribute(Qt::WA_AcceptTouchEvents);
  area->resize(host_->size());
  area->show();
  return *area;
}

}  // namespace quorix::testing
