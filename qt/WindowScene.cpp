#include "qt/WindowScene.h"

#include <QGuiApplication>
#include <QWindow>

#include "qt/SafeAreaWatcher.h"

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

WindowScene::~WindowScene() { delete safeArea_; }

bool WindowScene::isVisible() const {
  const QWindow* window = toolkit_.window();
  return window && window->isVisible();
}

hosting::SheetSession& WindowScene::newSheet(const hosting::Responder* opener) {
  followSafeArea();
  return toolkit_.newSheet(*this, opener);
}

/// Qt may have made a widget's native window anew since the last sheet.
void WindowScene::followSafeArea() {
  QWindow* window = toolkit_.window();
  if (!window || (safeArea_ && safeArea_->parent() == window)) return;
  delete safeArea_;
  const auto follow = [this] {
    const QMargins covered = safeArea_->covered();
    setSafeArea({double(covered.top()), double(covered.left()), double(covered.bottom()),
                 double(covered.right())});
  };
  safeArea_ = new SafeAreaWatcher(*window, follow);
  follow();
}

void WindowScene::focusWindowChanged(QWindow* focused) {
  focused&& focused == toolkit_.window() ? becameKey() : visibilityChanged();
}

}  // namespace quorix::qt
