#include "qt/SheetSurface.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTouchEvent>
#include <utility>

#include "qt/AccessibilityBridge.h"
#include "qt/Input.h"
#include "qt/QtTextEngine.h"
#include "qt/ViewAccessible.h"

namespace quorix::qt {

SheetSurface::SheetSurface(QObject& self, const QString& webComponent)
    : self_(self),
      presenter_(QtTextEngine::shared(), *this),
      clock_([this](double seconds) { return presenter_.advance(seconds); }),
      pages_(webComponent, self, *this),
      above_(
          self, [this] { return presenter_.presentation(); },
          [this] {
            SheetSurface* sheet = makeSheetAbove();
            if (sheet) sheet->setSettings(settings_);
            return sheet;
          }) {}

SheetSurface::~SheetSurface() = default;

void SheetSurface::setSettings(const EnvironmentSource& settings) {
  settings_ = settings;
  presenter_.setEnvironment(settings_.at(scale()));
  presenter_.setMotion(settings_.allowsMotion());
  above_.setSettings(settings);
}

// Coming and going.

void SheetSurface::present(const swiftui::Presentation& presentation) {
  gaveUpPages_ = false;
  presenter_.present(presentation);
  if (std::exchange(presented_, true)) return;
  AccessibilityBridge::coverChanged();
  takeFocusOver();
  ViewAccessible::focusChanged(self_);
  if (!pages_.canShow(presenter_.panel())) giveUpPages();
}

void SheetSurface::close() {
  if (std::exchange(closed_, true)) return;
  leave();
}

void SheetSurface::abandon() {
  if (std::exchange(closed_, true)) return;
  above_.abandon();
  clock_.stop();
  // On a later turn: the window may be on its way out, and does not bear a change of focus then.
  QMetaObject::invokeMethod(
      &self_, [this] { leave(); }, Qt::QueuedConnection);
}

void SheetSurface::leave() {
  clock_.stop();
  above_.close();  // first, since it gives the focus back to this one
  AccessibilityBridge::coverChanged();
  giveFocusBack();
  vanish();
  // The presenter is still at work, and so may be an event of this surface.
  self_.deleteLater();
}

void SheetSurface::followMotion() {
  if (!presenter_.isMoving()) return;
  if (settings_.allowsMotion()) {
    clock_.start();
  } else {
    presenter_.advance(0);
  }
}

// Pages.

void SheetSurface::wasShown() {
  if (std::exchange(shown_, true) || closed_) return;
  needsFrame();
}

void SheetSurface::followPages() {
  if (!shown_ || closed_ || gaveUpPages_) return;
  if (pagesRevision_ != presenter_.panelRevision()) {
    pagesRevision_ = presenter_.panelRevision();
    if (!pages_.follow(presenter_.panel())) return giveUpPages();
  }
  const layout::Point corner = presenter_.panelFrame().origin;
  int index = 0;
  pages_.place(presenter_.panel(), [&](QObject& view, const layout::Rect& room) {
    placePage(view, room.translated(corner), index++);
  });
}

/// At most once for each presentation: the sheet may still be falling when its next frame comes.
void SheetSurface::giveUpPages() {
  gaveUpPages_ = true;
  EmbeddedPages::sendOutside(presenter_.panel());
  presenter_.dismiss();
}

void SheetSurface::pageTookFocus() {
  presenter_.dropFocus();
  ViewAccessible::focusChanged(self_);
}

void SheetSurface::pageEnded() {
  takeFocusFromPages();
  ViewAccessible::focusChanged(self_);
}

void SheetSurface::leftPages(bool forward) {
  takeFocusFromPages();
  walk(forward);
}

/// Leads the focus to the first page, or backward to the last. False when there is none.
bool SheetSurface::enterPages(bool forward) {
  const auto views = pages_.views();
  if (views.empty()) return false;
  focusPage(forward ? *views.front() : *views.back(), forward);
  return true;
}

// Input.

bool SheetSurface::handle(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return handleMouse(static_cast<QMouseEvent&>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
      handleTouch(static_cast<QTouchEvent&>(event));
      return true;
    case QEvent::Wheel:
      event.accept();
      return true;
    case QEvent::ShortcutOverride: {
      const auto& key = static_cast<const QKeyEvent&>(event);
      event.setAccepted(meaningOf(key) != KeyMeaning::none || pages_.takes(key, true));
      return true;
    }
    case QEvent::KeyPress:
      return handleKey(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      // A phone closes the window when nobody takes the release of its Back key.
      event.setAccepted(meaningOf(static_cast<QKeyEvent&>(event)) == KeyMeaning::close);
      return true;
    default:
      return false;
  }
}

bool SheetSurface::handleMouse(const QMouseEvent& event) {
  const bool moves = event.type() == QEvent::MouseMove;
  if (!moves && event.button() != Qt::LeftButton) return true;
  if (moves) {
    moved(event.position(), event.timestamp());
  } else if (event.type() == QEvent::MouseButtonRelease) {
    released(event.position(), event.timestamp());
  } else {
    pressed(event.position(), event.timestamp());
  }
  return true;
}

void SheetSurface::handleTouch(const QTouchEvent& event) {
  const auto report = finger_.read(event);
  if (!report) return;
  switch (report->phase) {
    case FingerTracker::Phase::pressed:
      return pressed(report->position, event.timestamp());
    case FingerTracker::Phase::moved:
      return moved(report->position, event.timestamp());
    case FingerTracker::Phase::released:
      return released(report->position, event.timestamp());
    case FingerTracker::Phase::cancelled:
      return presenter_.pointerCancelled();
  }
}

void SheetSurface::pressed(QPointF point, quint64 at) {
  takeFocusFromPages();
  velocity_.reset();
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerPressed(toPoint(point));
}

void SheetSurface::moved(QPointF point, quint64 at) {
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerMoved(toPoint(point));
}

void SheetSurface::released(QPointF point, quint64 at) {
  velocity_.add(point.y(), static_cast<double>(at) * 1e-3);
  presenter_.pointerReleased(toPoint(point), velocity_.velocity());
}

void SheetSurface::pointerLost() {
  finger_.forget();
  presenter_.pointerCancelled();
}

bool SheetSurface::takesTapAt(QPointF point) {
  return presenter_.scene().hitTest(toPoint(point)) != nullptr;
}

bool SheetSurface::handleKey(QKeyEvent& event) {
  if (pages_.takes(event)) return true;
  switch (meaningOf(event)) {
    case KeyMeaning::close:
      presenter_.dismiss();
      return true;
    case KeyMeaning::forward:
      walk(true);
      return true;
    case KeyMeaning::backward:
      walk(false);
      return true;
    case KeyMeaning::activate:
      if (!event.isAutoRepeat()) presenter_.activateFocus();
      return true;
    case KeyMeaning::none:
      return false;
  }
  return false;
}

bool SheetSurface::focusElement(int index) {
  ViewAccessible::focusChanged(self_, Qt::QueuedConnection);
  return presenter_.focus(index);
}

void SheetSurface::walk(bool forward) {
  // Past the last element come the pages; where none is there yet, the first element again.
  if (!presenter_.moveFocus(forward) && !enterPages(forward)) presenter_.moveFocus(forward);
  ViewAccessible::focusChanged(self_);
}

}  // namespace quorix::qt
