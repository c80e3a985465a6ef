#pragma once

#include <QWidget>

namespace quorix::examples {

/// Whether `widget` has the focus by keyboard, so that its ring is drawn.
inline bool isFocusShown(const QWidget& widget) {
  return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace quorix::examples
