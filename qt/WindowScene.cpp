#include "qt/WindowScene.h"

#include <QGuiApplication>
#include <QWindow>

namespace quorix::qt {

WindowScene* WindowScene::find(const QObject& window) {
  return window.findChild<WindowScene*>(QString(), Qt::FindDirectChildrenOnly);
}

WindowScene& WindowScene::of(QObject& window, const Toolkit& toolkit) {
  WindowScene* scene = find(window);
  return scene ? *scene : *new WindowScene(window, toolkit);
}

WindowScene::WindowScene(QObject& window, const Toolkit& toolkit)
    : QObject(&window), toolkit_(toolkit) {
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &WindowScene::focusWindowChanged);
  focusWindowChanged(QGuiApplication::focusWindow());
}

bool WindowScene::isVisible() const {
  const QWindow* window = toolkit_.window();
  return window && window->isVisible();
}

void WindowScene::focusWindowChanged(QWindow* focused) {
  focused&& focused == toolkit_.window() ? becameKey() : visibilityChanged();
}

}  // namespace quorix::qt
