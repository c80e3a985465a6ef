#pragma once

#include <QObject>

class QWidget;

namespace quorix::qt {

/// Tells the view widgets of one window when it is minimized or comes back; Qt tells only the
/// window. Belongs to the window; main thread.
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
};

}  // namespace quorix::qt
