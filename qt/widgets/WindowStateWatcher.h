#pragma once

#include <QObject>
#include <QPointer>

class QMouseEvent;
class QWidget;

namespace quorix::qt {

class ViewWidget;

/// Watches a window for its view widgets. Tells them when the window is minimized or restored,
/// which Qt tells only the window. Gives a widget that is smaller than a finger needs the taps of
/// fingers beside it, where no widget of the host takes them. Belongs to the window; main thread.
class WindowStateWatcher : public QObject {
  Q_OBJECT

 public:
  /// Does nothing for a window that is watched.
  static void watch(QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit WindowStateWatcher(QWidget& window);
  bool takesPress(QMouseEvent& press);

  QWidget& window_;
  QPointer<ViewWidget> pressed_;  ///< a finger beside it is down
};

}  // namespace quorix::qt
