#pragma once

#include <QObject>
#include <QRectF>
#include <QTransform>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/hosting/ViewportMotion.h"

class QQuickItem;
class QQuickWindow;

namespace quorix::qt {

/// Tells the view items of one window what changes around them: one connection for all, and in each
/// frame one search for the items that scrolled into sight. Belongs to the window; main
/// thread.
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

  static WindowWatcher& of(QQuickWindow& window);

  void add(Client& client, QQuickItem& parent);
  static void remove(Client& client);
  /// The item's own geometry changed.
  static void moved(Client& client);

  bool isWindowVisible() const;
  /// The part of the window in which `item` is visible, and a margin around it; in the window's
  /// coordinates.
  static QRectF viewportOf(const QQuickItem& item);

 private:
  explicit WindowWatcher(QQuickWindow& window);
  ~WindowWatcher() override;
  void frame();
  void lookAtSome();

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
  bool update(Group& group, const QQuickItem& parent) const;
  static bool isConcerned(Entry& entry);

  QQuickWindow& window_;
  std::unordered_map<QQuickItem*, Group> groups_;
  std::vector<Entry> entries_;
  std::size_t next_ = 0;  ///< the entry that `lookAtSome` begins with
};

}  // namespace quorix::qt
