#pragma once

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTransform>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/hosting/ViewportMotion.h"
#include "qt/Conversions.h"
#include "qt/Surface.h"

namespace quorix::qt {

/// Tells the view items of one window what changes around them: one connection for all, and in each
/// frame one search for the items that scrolled into sight. Belongs to the window; main thread.
///
/// Qt Quick does not signal that an ancestor moved. Items are therefore grouped by parent, and only
/// those of a parent that moved are compared, as plain rectangles. In each frame a few others are
/// checked as well, for transforms that Qt does not signal.
class WindowWatcher : public QObject {
  Q_OBJECT

 public:
  class Client {
   public:
    virtual ~Client() = default;
    virtual layout::Rect boundsInParent() const = 0;
    /// Before a frame: the item may have come into sight, left it, or moved in it.
    virtual void placeMayHaveChanged() = 0;

   protected:
    /// Null outside a window.
    const WindowWatcher* watcher() const { return watcher_; }

   private:
    friend class WindowWatcher;
    WindowWatcher* watcher_ = nullptr;
    std::size_t index_ = 0;
  };

  static WindowWatcher& of(QQuickWindow& window) {
    auto* watcher = window.findChild<WindowWatcher*>(QString(), Qt::FindDirectChildrenOnly);
    return watcher ? *watcher : *new WindowWatcher(window);
  }

  void add(Client& client, QQuickItem& parent) {
    remove(client);
    Group& group = groups_[&parent];
    ++group.count;
    client.watcher_ = this;
    client.index_ = entries_.size();
    entries_.push_back({&client, &parent, &group, {}});
  }

  static void remove(Client& client) {
    WindowWatcher* watcher = std::exchange(client.watcher_, nullptr);
    if (!watcher) return;
    Entry& entry = watcher->entries_[client.index_];
    if (--entry.group->count == 0) watcher->groups_.erase(entry.parent);
    entry = watcher->entries_.back();
    entry.client->index_ = client.index_;
    watcher->entries_.pop_back();
  }

  /// The item's own geometry changed.
  static void moved(Client& client) {
    if (!client.watcher_) return;
    client.watcher_->entries_[client.index_].bounds.reset();
    client.placeMayHaveChanged();
  }

  bool isWindowVisible() const {
    return window_.isVisible() && window_.visibility() != QWindow::Minimized;
  }

  /// The part of the window in which children of `parent` are visible, and a margin around it: a
  /// flick brings the margin into view before the next frame is painted. In the window's
  /// coordinates.
  static QRectF viewportIn(const QQuickItem* parent) {
    constexpr double margin = 160;
    const QRectF seen = seenIn(parent);
    return seen.isEmpty() ? seen : seen.adjusted(-margin, -margin, margin, margin);
  }

 private:
  /// How many items are checked in each frame, moved or not: all of an ordinary page.
  static constexpr std::size_t kLooks = 8;

  /// The items of one parent.
  struct Group {
    QTransform toWindow;
    QRectF viewport;  ///< in the window
    hosting::ViewportMotion motion;
    bool moved = false;
    int count = 0;
  };
  struct Entry {
    Client* client;
    QQuickItem* parent;
    Group* group;
    std::optional<layout::Rect> bounds;  ///< in the parent's coordinates; absent: ask the client
  };

  explicit WindowWatcher(QQuickWindow& window) : QObject(&window), window_(window) {
    connect(&window, &QWindow::visibilityChanged, this,
            [&window] { Surface::tellWindowState(&window); });
    connect(&window, &QQuickWindow::afterAnimating, this, &WindowWatcher::frame);
  }

  ~WindowWatcher() override {
    for (const Entry& entry : entries_) entry.client->watcher_ = nullptr;
  }

  static QRectF seenIn(const QQuickItem* parent) {
    if (!parent) return {};
    // The window's own root bounds everything.
    while (parent->parentItem() && !parent->flags().testFlag(QQuickItem::ItemIsViewport)) {
      parent = parent->parentItem();
    }
    const QRectF own = parent->mapRectToScene(parent->boundingRect());
    return parent->parentItem() ? own.intersected(seenIn(parent->parentItem())) : own;
  }

  void frame() {
    if (entries_.size() <= kLooks) return lookAtSome();  // at all
    bool anyMoved = false;
    for (auto& [parent, group] : groups_) {
      update(group, *parent);
      anyMoved |= group.moved;
    }
    if (anyMoved) {
      for (Entry& entry : entries_) {
        if (entry.group->moved && isConcerned(entry)) entry.client->placeMayHaveChanged();
      }
    }
    lookAtSome();
  }

  void update(Group& group, const QQuickItem& parent) const {
    const QTransform toWindow = parent.itemTransform(nullptr, nullptr);
    const QRectF viewport = viewportIn(&parent);
    group.moved = toWindow != group.toWindow || viewport != group.viewport;
    if (!group.moved) return;
    group.toWindow = toWindow;
    group.viewport = viewport;
    std::optional<layout::Point> origin;
    if (toWindow.type() <= QTransform::TxTranslate) origin = {toWindow.dx(), toWindow.dy()};
    group.motion.move(toRect(toWindow.inverted().mapRect(viewport)), origin,
                      window_.effectiveDevicePixelRatio());
  }

  static bool isConcerned(Entry& entry) {
    const bool isNew = !entry.bounds;
    if (isNew) entry.bounds = entry.client->boundsInParent();
    return entry.group->motion.concerns(*entry.bounds, isNew);
  }

  void lookAtSome() {
    for (std::size_t i = 0; i < std::min(kLooks, entries_.size()); ++i) {
      if (next_ >= entries_.size()) next_ = 0;
      Entry& entry = entries_[next_++];
      entry.bounds.reset();
      entry.client->placeMayHaveChanged();
    }
  }

  QQuickWindow& window_;
  std::unordered_map<QQuickItem*, Group> groups_;
  std::vector<Entry> entries_;
  std::size_t next_ = 0;  ///< the entry that `lookAtSome` begins with
};

}  // namespace quorix::qt
