#include "qt/WindowWatcher.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <vector>

#include "qt/AccessibilityBridge.h"
#include "qt/Desktop.h"

namespace quorix::qt {
namespace {

QHash<QQuickWindow*, WindowWatcher*>& watchers() {
  static QHash<QQuickWindow*, WindowWatcher*> all;
  return all;
}

const QQuickItem* viewportAround(const QQuickItem* item) {
  const QQuickItem* parent = item->parentItem();
  while (parent && !parent->flags().testFlag(QQuickItem::ItemIsViewport)) {
    parent = parent->parentItem();
  }
  return parent;
}

}  // namespace

WindowWatcher& WindowWatcher::of(QQuickWindow& window) {
  WindowWatcher*& watcher = watchers()[&window];
  if (!watcher) watcher = new WindowWatcher(window);
  return *watcher;
}

WindowWatcher::WindowWatcher(QQuickWindow& window) : QObject(&window), window_(window) {
  const auto visibility = [this] {
    tellAll([](Client& client) { client.windowVisibilityChanged(); });
  };
  connect(&window, &QWindow::visibilityChanged, this, visibility);
  connect(&window, &QQuickWindow::afterAnimating, this, &WindowWatcher::frame);
  connect(Desktop::instance(), &Desktop::changed, this,
          [this] { tellAll([](Client& client) { client.desktopChanged(); }); });
  connect(AccessibilityBridge::instance(), &AccessibilityBridge::began, this,
          [this] { tellAll([](Client& client) { client.accessibilityBegan(); }); });
}

WindowWatcher::~WindowWatcher() { watchers().remove(&window_); }

bool WindowWatcher::isWindowVisible() const {
  return window_.isVisible() && window_.visibility() != QWindow::Minimized;
}

QRectF WindowWatcher::viewportOf(const QQuickItem& item) {
  const QQuickItem* viewport = viewportAround(&item);
  if (!viewport) return QRectF(QPointF(), window_.size());
  const auto known = viewports_.constFind(viewport);
  if (known != viewports_.cend()) return *known;
  const QRectF rect =
      viewport->mapRectToScene(viewport->boundingRect()).intersected(viewportOf(*viewport));
  if (inFrame_) viewports_.insert(viewport, rect);
  return rect;
}

void WindowWatcher::frame() {
  inFrame_ = true;
  for (Client* client : clients_) client->frameBegins(*this);
  inFrame_ = false;
  viewports_.clear();
}

template <class Call>
void WindowWatcher::tellAll(Call call) {
  // A client's answer may add and remove clients.
  const std::vector<Client*> all(clients_.begin(), clients_.end());
  for (Client* client : all) {
    if (clients_.contains(client)) call(*client);
  }
}

}  // namespace quorix::qt
