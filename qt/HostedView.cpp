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
    : self_(self), host_(QtTextEngine::shared(), *this), focus_(host_) {}

HostedView::~HostedView() { leaveSheet(); }

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
  if (SheetSurface* open = sheet()) open->setSettings(now);
  contentChanged();
}

/// Whatever the view presents on being used belongs over this window.
void HostedView::used() {
  if (WindowScene* scene = windowScene()) scene->used(settings());
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
  if (own) host_.pointerReleased(toPoint(event.position()));
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
      host_.pointerReleased(toPoint(report->position));
      return;
    case FingerTracker::Phase::cancelled:
      host_.pointerCancelled();
      return;
  }
}

void HostedView::pointerLost() {
  finger_.forget();
  mouseTaken_ = false;
  host_.pointerCancelled();
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
  needsFrame();
  // After the toolkit, which tells of the view as a whole.
  if (host_.focusFrame()) ViewAccessible::focusChanged(self_, Qt::QueuedConnection);
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

void HostedView::leaveSheet() {
  if (SheetSurface* open = sheet()) open->abandon();
}

void HostedView::presentationChanged() {
  if (std::exchange(presentQueued_, true)) return;
  // The host may be in the middle of something.
  QMetaObject::invokeMethod(
      &self_, [this] { presentSheet(); }, Qt::QueuedConnection);
}

void HostedView::presentSheet() {
  presentQueued_ = false;
  SheetSurface* open = sheet();
  if (open && open->isClosed()) open = nullptr;
  const swiftui::Presentation* presentation = host_.presentation();
  if (!presentation) {
    if (open) open->retract();
    return;
  }
  if (!open) {
    WindowScene* scene = windowScene();
    if (!scene) return;
    open = scene->makeSheet();
    sheet_ = open;
    sheetObject_ = &open->object();
  }
  open->setSettings(settings());
  open->present(*presentation);
}

}  // namespace quorix::qt
