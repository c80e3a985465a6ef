#pragma once

#include <QHash>
#include <QObject>
#include <QRectF>
#include <unordered_set>

class QQuickItem;
class QQuickWindow;

namespace quorix::qt {

/// What the view items of one window share: one set of connections for all, so that an item costs
/// little and an idle one nothing. Belongs to the window; main thread.
class WindowWatcher : public QObject {
  Q_OBJECT

 public:
  class Client {
   public:
    virtual ~Client() = default;
    /// The window was shown, hidden or minimized.
    virtual void windowVisibilityChanged() = 0;
    virtual void desktopChanged() = 0;
    virtual void accessibilityBegan() = 0;
    /// A frame is about to be made. An item that scrolled is not told so otherwise.
    virtual void frameBegins(WindowWatcher& watcher) = 0;
  };

  static WindowWatcher& of(QQuickWindow& window);

  void add(Client& client) { clients_.insert(&client); }
  void remove(Client& client) { clients_.erase(&client); }

  bool isWindowVisible() const;
  /// The part of the window, in its coordinates, that the viewports around `item` leave to it.
  QRectF viewportOf(const QQuickItem& item);

 private:
  explicit WindowWatcher(QQuickWindow& window);
  ~WindowWatcher() override;
  void frame();
  template <class Call>
  void tellAll(Call call);

  QQuickWindow& window_;
  std::unordered_set<Client*> clients_;
  bool inFrame_ = false;
  QHash<const QQuickItem*, QRectF> viewports_;  ///< by viewport item, while `inFrame_`
};

}  // namespace quorix::qt
