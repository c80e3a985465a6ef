#pragma once

#include <QWidget>

namespace quorix::examples {

/// Whether `widget` has the focus of somebody who uses the keyboard, and so wants to see it.
inline bool isFocusShown(const QWidget& widget) {
  return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace quorix::examples
