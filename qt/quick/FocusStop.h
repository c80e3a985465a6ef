#pragma once

#include <QQuickItem>
#include <functional>

namespace quorix::qt {

/// Stands before or after an item in the focus chain and says when the keyboard comes by.
class FocusStop : public QQuickItem {
 public:
  FocusStop(QQuickItem& parent, std::function<void()> passed)
      : QQuickItem(&parent), passed_(std::move(passed)) {
    setActiveFocusOnTab(true);
  }

 protected:
  void focusInEvent(QFocusEvent*) override {
    // Not while the focus is still moving.
    QMetaObject::invokeMethod(this, passed_, Qt::QueuedConnection);
  }

 private:
  std::function<void()> passed_;
};

}  // namespace quorix::qt
