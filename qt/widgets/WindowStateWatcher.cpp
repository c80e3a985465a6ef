#include "qt/widgets/WindowStateWatcher.h"

#include <QEvent>
#include <QWidget>

namespace quorix::qt {

WindowStateWatcher& WindowStateWatcher::of(QWidget& window) {
  auto* watcher = window.findChild<WindowStateWatcher*>(QString(), Qt::FindDirectChildrenOnly);
  return watcher ? *watcher : *new WindowStateWatcher(window);
}

WindowStateWatcher::WindowStateWatcher(QWidget& window) : QObject(&window) {
  window.installEventFilter(this);
}

bool WindowStateWatcher::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) emit changed();
  return false;
}

}  // namespace quorix::qt
