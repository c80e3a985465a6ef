#include "qt/HostedWindow.h"

#include <QGuiApplication>

#include "platform/hosting/SheetSession.h"

namespace quorix::qt {

namespace {

/// Null before a view of the window needs one.
HostedWindow* find(const QObject& window) {
  return window.findChild<HostedWindow*>(QString(), Qt::FindDirectChildrenOnly);
}

}  // namespace

const hosting::Responder* HostedWindow::topmostOf(const QObject* window) {
  const HostedWindow* session = window ? find(*window) : nullptr;
  return session ? session->topmost() : nullptr;
}

HostedWindow& HostedWindow::of(QObject& window, const Toolkit& toolkit) {
  HostedWindow* session = find(window);
  return session ? *session : *new HostedWindow(window, toolkit);
}

HostedWindow::HostedWindow(QObject& window, const Toolkit& toolkit)
    : QObject(&window), toolkit_(toolkit) {
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &HostedWindow::focusWindowChanged);
  focusWindowChanged(QGuiApplication::focusWindow());
}

bool HostedWindow::isVisible() const {
  const QWindow* window = toolkit_.window();
  return window && window->isVisible();
}

hosting::SheetSession& HostedWindow::newSheet(const hosting::Responder* opener) {
  const auto follow = [this](QMarginsF covered) {
    setSafeArea({covered.top(), covered.left(), covered.bottom(), covered.right()});
  };
  // Qt may have made a widget's native window anew since the last sheet.
  if (QWindow* window = toolkit_.window()) {
    safeArea_ = std::make_unique<SafeAreaWatcher<QWindow>>(*window, follow);
  }
  return toolkit_.newSheet(*this, opener);
}

void HostedWindow::focusWindowChanged(QWindow* focused) {
  const bool isKey = focused != nullptr && focused == toolkit_.window();
  isKey ? becameKey() : visibilityChanged();
}

}  // namespace quorix::qt
