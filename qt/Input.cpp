#include "qt/Input.h"
#include "qt/Conversions.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWheelEvent>

namespace quorix::qt {
namespace {

using hosting::Key;
using hosting::PointerEvent;
using Phase = PointerEvent::Phase;

Key scrollKeyOf(int key) {
  switch (key) {
    case Qt::Key_Up:
      return Key::up;
    case Qt::Key_Down:
      return Key::down;
    case Qt::Key_PageUp:
      return Key::pageUp;
    case Qt::Key_PageDown:
      return Key::pageDown;
    case Qt::Key_Home:
      return Key::home;
    case Qt::Key_End:
      return Key::end;
    default:
      return Key::other;
  }
}

Key keyOf(const QKeyEvent& event) {
  const bool alt = event.modifiers() == Qt::AltModifier;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
      return Key::activate;
    case Qt::Key_Tab:
      return event.modifiers() & Qt::ShiftModifier ? Key::previous : Key::next;
    case Qt::Key_Backtab:
      return Key::previous;
    case Qt::Key_Escape:
      return Key::escape;
    case Qt::Key_Back:
      return Key::back;
    case Qt::Key_Left:
      return alt ? Key::pageBack : Key::other;
    case Qt::Key_Right:
      return alt ? Key::pageForward : Key::other;
    case Qt::Key_Forward:
      return Key::pageForward;
    default:
      // With a modifier, such a key is a shortcut of the host.
      return event.modifiers() & ~Qt::KeypadModifier ? Key::other : scrollKeyOf(event.key());
  }
}

void passMouse(QMouseEvent& event, Phase phase, hosting::Responder& responder) {
  const bool left = phase == Phase::moved || event.button() == Qt::LeftButton;
  event.setAccepted(left && responder.handle(PointerEvent{phase, toPoint(event.position()),
                                                          static_cast<double>(event.timestamp())}));
}

void passTouch(QTouchEvent& event, hosting::Responder& responder) {
  for (const QEventPoint& point : event.points()) {
    const bool presses = point.state() == QEventPoint::Pressed;
    const Phase phase = presses                                  ? Phase::pressed
                        : point.state() == QEventPoint::Released ? Phase::released
                                                                 : Phase::moved;
    const bool taken = responder.handle(PointerEvent{
        phase, toPoint(point.position()), static_cast<double>(event.timestamp()), point.id()});
    if (phase == Phase::released && taken) return;  // the responder may be deleted
    if (!presses || taken) continue;
    event.ignore();
    return;
  }
}

}  // namespace

hosting::KeyEvent toKeyEvent(const QKeyEvent& event) {
  return {keyOf(event), event.isAutoRepeat()};
}

hosting::ScrollEvent toScrollEvent(const QWheelEvent& event) {
  const bool follows = event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull();
  if (follows) return {-double(event.pixelDelta().y()), true};
  const double notches = event.angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep);
  const int lines = QGuiApplication::styleHints()->wheelScrollLines();
  return {-notches * lines * hosting::ScrollEvent::line, false};
}

hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason) {
  using Cause = hosting::ViewFocus::Cause;
  switch (reason) {
    case Qt::TabFocusReason:
    case Qt::ShortcutFocusReason:
      return Cause::forward;
    case Qt::BacktabFocusReason:
      return Cause::backward;
    case Qt::PopupFocusReason:
    case Qt::ActiveWindowFocusReason:
      return Cause::interruption;
    default:
      return Cause::other;
  }
}

bool passPointer(QEvent& event, hosting::Responder& responder) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      passMouse(static_cast<QMouseEvent&>(event), Phase::pressed, responder);
      return true;
    case QEvent::MouseMove:
      passMouse(static_cast<QMouseEvent&>(event), Phase::moved, responder);
      return true;
    case QEvent::MouseButtonRelease:
      passMouse(static_cast<QMouseEvent&>(event), Phase::released, responder);
      return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      passTouch(static_cast<QTouchEvent&>(event), responder);
      return true;
    case QEvent::TouchCancel:
      responder.pointerLost();
      return true;
    default:
      return false;
  }
}

}  // namespace quorix::qt
