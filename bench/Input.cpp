#include "bench/Input.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace quorix::bench {

void sendTap(QQuickWindow& window, QPointF at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, at, window.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

void sendEscape(QQuickWindow& window) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

}  // namespace quorix::bench
