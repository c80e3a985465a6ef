#include "qt/quick/WindowWatcher.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <algorithm>
#include <utility>

#include "qt/Conversions.h"
#include "qt/Surface.h"

namespace quorix::qt {
namespace {

/// How many items are checked in each frame, moved or not: all of an ordinary page.
constexpr std::size_t kLooks = 8;

/// The part of the window in which children of `parent` are visible.
QRectF viewportIn(const QQuickItem* parent) {
  if (!parent) return {};
  // The window's own root bounds everything.
  while (parent->parentItem() && !parent->flags().testFlag(QQuickItem::ItemIsViewport)) {
    parent = parent->parentItem();
  }
  const QRectF own = parent->mapRectToScene(parent->boundingRect());
  return parent->parentItem() ? own.intersected(viewportIn(parent->parentItem())) : own;
}

/// The same with a margin: a flick brings the margin into view before the next frame is painted.
QRectF seenIn(const QQuickItem* parent) {
  constexpr double margin = 160;
  const QRectF viewport = viewportIn(parent);
  return viewport.isEmpty() ? viewport : viewport.adjusted(-margin, -margin, margin, margin);
}

}  // namespace

WindowWatcher& WindowWatcher::of(QQuickWindow& window) {
  auto* watcher = window.findChild<WindowWatcher*>(QString(), Qt::FindDirectChildrenOnly);
  return watcher ? *watcher : *new WindowWatcher(window);
}

WindowWatcher::WindowWatcher(QQuickWindow& window) : QObject(&window), window_(window) {
  connect(&window, &QWindow::visibilityChanged, this, [&window] {
    Surface::forEach([&](Surface& surface) {
      if (surface.accessibleWindow() == &window) surface.windowStateChanged();
    });
  });
  connect(&window, &QQuickWindow::afterAnimating, this, &WindowWatcher::frame);
}

WindowWatcher::~WindowWatcher() {
  for (const Entry& entry : entries_) entry.client->watcher_ = nullptr;
}

void WindowWatcher::add(Client& client, QQuickItem& parent) {
  remove(client);
  Group& group = groups_[&parent];
  ++group.count;
  client.watcher_ = this;
  client.index_ = entries_.size();
  entries_.push_back({&client, &parent, &group, {}});
}

void WindowWatcher::remove(Client& client) {
  WindowWatcher* watcher = std::exchange(client.watcher_, nullptr);
  if (!watcher) return;
  Entry& entry = watcher->entries_[client.index_];
  if (--entry.group->count == 0) watcher->groups_.erase(entry.parent);
  entry = watcher->entries_.back();
  entry.client->index_ = client.index_;
  watcher->entries_.pop_back();
}

void WindowWatcher::moved(Client& client) {
  if (!client.watcher_) return;
  client.watcher_->entries_[client.index_].bounds.reset();
  client.placeMayHaveChanged();
}

bool WindowWatcher::isWindowVisible() const {
  return window_.isVisible() && window_.visibility() != QWindow::Minimized;
}

QRectF WindowWatcher::viewportOf(const QQuickItem& item) { return seenIn(item.parentItem()); }

bool WindowWatcher::update(Group& group, const QQuickItem& parent) const {
  const QTransform toWindow = parent.itemTransform(nullptr, nullptr);
  const QRectF viewport = seenIn(&parent);
  group.moved = toWindow != group.toWindow || viewport != group.viewport;
  if (!group.moved) return false;
  group.toWindow = toWindow;
  group.viewport = viewport;
  std::optional<layout::Point> origin;
  if (toWindow.type() <= QTransform::TxTranslate) origin = {toWindow.dx(), toWindow.dy()};
  group.motion.move(toRect(toWindow.inverted().mapRect(viewport)), origin,
                    window_.effectiveDevicePixelRatio());
  return true;
}

void WindowWatcher::frame() {
  if (entries_.size() <= kLooks) return lookAtSome();  // at all
  bool anyMoved = false;
  for (auto& [parent, group] : groups_) anyMoved |= update(group, *parent);
  if (anyMoved) {
    for (Entry& entry : entries_) {
      if (entry.group->moved && isConcerned(entry)) entry.client->placeMayHaveChanged();
    }
  }
  lookAtSome();
}

bool WindowWatcher::isConcerned(Entry& entry) {
  const bool isNew = !entry.bounds;
  if (isNew) entry.bounds = entry.client->boundsInParent();
  return entry.group->motion.concerns(*entry.bounds, isNew);
}

void WindowWatcher::lookAtSome() {
  for (std::size_t i = 0; i < std::min(kLooks, entries_.size()); ++i) {
    if (next_ >= entries_.size()) next_ = 0;
    Entry& entry = entries_[next_++];
    entry.bounds.reset();
    entry.client->placeMayHaveChanged();
  }
}

}  // namespace quorix::qt
