#pragma once

#include <QObject>
#include <QPointer>

class QMouseEvent;
class QWidget;

namespace quorix::qt {

class ViewWidget;

/// What the view widgets of one window hear of it: that it is minimized or comes back, which Qt
/// tells only the window, and a finger's tap just beside a widget that is smaller than a finger
/// needs, where nothing of the host's takes it. Belongs to the window; main thread.
class WindowStateWatcher : public QObject {
  Q_OBJECT

 public:
  static WindowStateWatcher& of(QWidget& window);

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit WindowStateWatcher(QWidget& window);
  bool takesPress(QMouseEvent& press);

  QWidget& window_;
  QPointer<ViewWidget> pressed_;  ///< by a finger beside it
};

}  // namespace quorix::qt
