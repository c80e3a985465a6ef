#include "qt/Input.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWheelEvent>
#include <initializer_list>
#include <utility>

#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

using hosting::Key;
using hosting::PointerEvent;
using Phase = PointerEvent::Phase;

using Meanings = std::initializer_list<std::pair<Qt::Key, Key>>;

Key meaningOf(int key, Meanings meanings) {
  for (const auto& [named, meaning] : meanings) {
    if (named == key) return meaning;
  }
  return Key::other;
}

Key keyOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers with = event.modifiers();
  if (event.key() == Qt::Key_Tab && with & Qt::ShiftModifier) return Key::previous;
  const Key always = meaningOf(event.key(), {{Qt::Key_Return, Key::activate},
                                             {Qt::Key_Enter, Key::activate},
                                             {Qt::Key_Space, Key::activate},
                                             {Qt::Key_Select, Key::activate},
                                             {Qt::Key_Tab, Key::next},
                                             {Qt::Key_Backtab, Key::previous},
                                             {Qt::Key_Escape, Key::escape},
                                             {Qt::Key_Back, Key::back},
                                             {Qt::Key_Forward, Key::pageForward}});
  if (always != Key::other) return always;
  if (with == Qt::AltModifier) {
    return meaningOf(event.key(),
                     {{Qt::Key_Left, Key::pageBack}, {Qt::Key_Right, Key::pageForward}});
  }
  // With a modifier, such a key is a shortcut of the host.
  if (with & ~Qt::KeypadModifier) return Key::other;
  return meaningOf(event.key(), {{Qt::Key_Up, Key::up},
                                 {Qt::Key_Down, Key::down},
                                 {Qt::Key_PageUp, Key::pageUp},
                                 {Qt::Key_PageDown, Key::pageDown},
                                 {Qt::Key_Home, Key::home},
                                 {Qt::Key_End, Key::end}});
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

hosting::ScrollEvent toScrollEvent(const QWheelEvent& event) {
  const bool follows = event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull();
  if (follows) return {-double(event.pixelDelta().y()), true};
  const double notches = event.angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep);
  const int lines = QGuiApplication::styleHints()->wheelScrollLines();
  return {-notches * lines * hosting::ScrollEvent::line, false};
}

}  // namespace

hosting::KeyEvent toKeyEvent(const QKeyEvent& event) {
  return {keyOf(event), event.isAutoRepeat()};
}

hosting::ViewFocus::Cause causeOf(Qt::FocusReason reason) {
  using Cause = hosting::ViewFocus::Cause;
  if (reason == Qt::TabFocusReason || reason == Qt::ShortcutFocusReason) return Cause::forward;
  if (reason == Qt::BacktabFocusReason) return Cause::backward;
  const bool interrupts = reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
  return interrupts ? Cause::interruption : Cause::other;
}

bool passInput(QEvent& event, hosting::Responder& responder) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return responder.handle(toKeyEvent(static_cast<QKeyEvent&>(event)));
    case QEvent::Wheel:
      return responder.handle(toScrollEvent(static_cast<QWheelEvent&>(event)));
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
