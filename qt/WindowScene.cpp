#include "qt/WindowScene.h"

#include <QGuiApplication>

#include "platform/hosting/SheetSession.h"

namespace quorix::qt {

namespace {

/// Null before a view of the window needs one.
WindowScene* find(const QObject& window) {
  return window.findChild<WindowScene*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

const hosting::Responder* WindowScene::topmostOf(const QObject* window) {
  const WindowScene* scene = window ? find(*window) : nullptr;
  return scene ? scene->topmost() : nullptr;
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

hosting::SheetSession& WindowScene::newSheet(const hosting::Responder* opener) {
  const auto follow = [this](QMarginsF covered) {
    setSafeArea({covered.top(), covered.left(), covered.bottom(), covered.right()});
  };
  // Qt may have made a widget's native window anew since the last sheet.
  if (QWindow* window = toolkit_.window()) {
    safeArea_ = std::make_unique<SafeAreaWatcher<QWindow>>(*window, follow);
  }
  return toolkit_.newSheet(*this, opener);
}

void WindowScene::focusWindowChanged(QWindow* focused) {
  const bool isKey = focused != nullptr && focused == toolkit_.window();
  isKey ? becameKey() : visibilityChanged();
}

}  // namespace quorix::qt
