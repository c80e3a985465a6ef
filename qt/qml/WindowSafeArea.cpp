#include "qt/qml/WindowSafeArea.h"

#include <QQmlInfo>
#include <QWindow>

#include "qt/SafeArea.h"

namespace quorix::qml {

WindowSafeArea::WindowSafeArea(QObject* window) : QObject(window) {
  auto* attachee = qobject_cast<QWindow*>(window);
  if (!attachee) {
    qmlWarning(window) << "WindowSafeArea has to be attached to a window";
    return;
  }
  const auto say = [this, attachee] {
    qt::setSafeArea(*attachee, QMargins(left_, top_, right_, bottom_));
  };
  connect(this, &WindowSafeArea::changed, this, say);
  say();  // an edge of 0 is no change
}

}  // namespace quorix::qml
