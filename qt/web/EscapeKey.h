#pragma once

#include <QObject>
#include <functional>

namespace quorix::qt {

/// Watches the keys that close a sheet (Escape, a phone's Back) on their way to a page, and lets
/// Escape come back from a page that has no use for it. The engine gives back what a page leaves
/// unused, except where a key stands for a character, which it takes Escape to do; so the page gets
/// Escape without one. Main thread.
class EscapeKey : public QObject {
 public:
  /// `isForPage`: whether what comes to this window goes to the page. `given` is called before the
  /// page gets such a key.
  EscapeKey(std::function<bool(const QObject& window)> isForPage, std::function<void()> given);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<bool(const QObject&)> isForPage_;
  std::function<void()> given_;
};

}  // namespace quorix::qt
