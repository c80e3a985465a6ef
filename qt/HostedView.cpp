#include "qt/HostedView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <utility>

#include "qt/Input.h"
#include "qt/QtTextEngine.h"
#include "qt/SheetSurface.h"
#include "qt/ViewAccessible.h"
#include "qt/WindowScene.h"

namespace quorix::qt {

HostedView::HostedView(QObject& self)
    : self_(self),
      host_(QtTextEngine::shared(), *this),
      focus_(host_),
      sheet_(
          self, [this] { return host_.presentation(); }, [this] { return makeSheet(); }) {}

HostedView::~HostedView() = default;

void HostedView::replaceView(swiftui::View view) {
  const bool focused = focusFrame().has_value();
  host_.setRoot(std::move(view));
  contentChanged();
  if (!focused) return;
  host_.scene(size());  // which says what there is to come to
  focus_.renewed();
}

void HostedView::environmentChanged() {
  const EnvironmentSource now = settings();
  host_.setEnvironment(now.at(scale()));
  sheet_.setSettings(now);
  contentChanged();
}

/// Whatever the view presents on being used belongs over this window.
void HostedView::used() {
  if (WindowScene* scene = windowScene()) scene->used(self_, settings());
}

void HostedView::activate(int index) {
  used();
  host_.activate(index);
}

bool HostedView::focusElement(int index) {
  host_.scene(size());  // which the index is of
  needsFrame();
  if (hasFocus()) ViewAccessible::focusChanged(self_, Qt::QueuedConnection);
  return host_.focus(index);
}

// Pointer.

bool HostedView::handle(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      pressed(static_cast<QMouseEvent&>(event));
      return true;
    case QEvent::MouseButtonRelease:
      released(static_cast<QMouseEvent&>(event));
      return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      handleTouch(static_cast<QTouchEvent&>(event));
      return true;
    case QEvent::KeyPress:
      return handleKey(static_cast<QKeyEvent&>(event));
    default:
      return false;
  }
}

void HostedView::pressed(QMouseEvent& event) {
  const bool taken =
      event.button() == Qt::LeftButton && host_.pointerPressed(toPoint(event.position()));
  event.setAccepted(taken);
  if (!taken) return;
  mouseTaken_ = true;
  used();
  takeFocusByPress();
  focus_.hideRing();
  needsFrame();
}

void HostedView::released(QMouseEvent& event) {
  // Whoever took the press gets the release as well.
  const bool own = event.button() == Qt::LeftButton && std::exchange(mouseTaken_, false);
  event.setAccepted(own);
  if (own) release(event.position());
}

/// On a later turn: Qt Quick still works with the item that it told of the release, and what the
/// tap does may delete it.
void HostedView::release(QPointF point) {
  releasing_ = true;
  const auto act = [this, at = toPoint(point)] {
    releasing_ = false;
    host_.pointerReleased(at);
  };
  QMetaObject::invokeMethod(&self_, act, Qt::QueuedConnection);
}

void HostedView::handleTouch(QTouchEvent& event) {
  const auto report = finger_.read(event);
  if (!report) return;
  switch (report->phase) {
    case FingerTracker::Phase::pressed:
      if (host_.pointerPressed(toPoint(report->position))) return used();
      finger_.forget();
      event.ignore();
      return;
    case FingerTracker::Phase::moved:
      return;
    case FingerTracker::Phase::released:
      return release(report->position);
    case FingerTracker::Phase::cancelled:
      host_.pointerCancelled();
      return;
  }
}

void HostedView::pointerLost() {
  finger_.forget();
  mouseTaken_ = false;
  if (!releasing_) host_.pointerCancelled();
}

bool HostedView::takesTapAt(QPointF point) {
  return host_.scene(size()).hitTest(toPoint(point)) != nullptr;
}

// Keyboard.

bool HostedView::handleKey(QKeyEvent& event) {
  if (meaningOf(event) != KeyMeaning::activate) return false;
  if (event.isAutoRepeat()) return true;
  event.setAccepted(host_.focusFrame().has_value());
  used();
  host_.activateFocus();
  return true;
}

bool HostedView::walk(bool forward) {
  const bool inside = focus_.walk(forward);
  needsFrame();
  if (inside) ViewAccessible::focusChanged(self_);
  return inside;
}

void HostedView::focusCame(Qt::FocusReason reason) {
  host_.scene(size());  // which says what there is to come to
  focus_.came(causeOf(reason));
  // A sheet gave it back to what its content, or the host, made empty.
  if (reason == Qt::PopupFocusReason && host_.actingElements() == 0) leaveFocus();
  needsFrame();
  // After the toolkit, which tells of the view as a whole.
  if (host_.focusFrame()) ViewAccessible::focusChanged(self_, Qt::QueuedConnection);
}

void HostedView::leaveFocus() {
  const auto leave = [this] {
    if (hasFocus() && host_.actingElements() == 0) giveFocusOn();
  };
  QMetaObject::invokeMethod(&self_, leave, Qt::QueuedConnection);
}

void HostedView::focusWent(Qt::FocusReason reason) {
  focus_.left(causeOf(reason));
  needsFrame();
}

std::optional<layout::Rect> HostedView::focusFrame() const {
  return hasFocus() ? host_.focusFrame() : std::nullopt;
}

std::optional<layout::Rect> HostedView::ringFrame() const {
  return hasFocus() ? focus_.ring() : std::nullopt;
}

// Sheet.

SheetSurface* HostedView::makeSheet() {
  WindowScene* scene = windowScene();
  if (!scene) return nullptr;
  SheetSurface* sheet = scene->makeSheet(self_);
  sheet->setSettings(settings());
  return sheet;
}

}  // namespace quorix::qt
