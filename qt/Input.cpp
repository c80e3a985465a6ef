#include "qt/Input.h"

#include <QKeyEvent>

namespace quorix::qt {

KeyMeaning meaningOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
      return KeyMeaning::activate;
    case Qt::Key_Tab:
      return event.modifiers() & Qt::ShiftModifier ? KeyMeaning::backward : KeyMeaning::forward;
    case Qt::Key_Backtab:
      return KeyMeaning::backward;
    case Qt::Key_Escape:
    case Qt::Key_Back:
      return KeyMeaning::close;
    default:
      return KeyMeaning::none;
  }
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

}  // namespace quorix::qt
