#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>

#include "qt/WebComponent.h"

class QKeyEvent;
class QTouchEvent;
class QWheelEvent;

namespace quorix::qt {

/// Watches what the user does in a page, on its way to the engine. Main thread.
///
/// Keys that close a sheet (Escape, a phone's Back) are told of before the page gets them, and
/// Escape comes back from a page that has no use for it. The engine gives back what a page leaves
/// unused, except where a key stands for a character, which it takes Escape to do; so the page gets
/// Escape without one.
///
/// Clicks, taps and keys are remembered, so that a page leads to another app because the user asked
/// for it, and once for each.
///
/// Fingers and trackpads are told of as well. A finger that swipes back or forward is taken from
/// the page, which gets a cancelled touch.
class PageInput : public QObject {
 public:
  /// `isForPage`: whether an event for this receiver is the page's. That is true of what the engine
  /// has in the page's view, and of the window while the page has the focus.
  PageInput(std::function<bool(const QObject& receiver)> isForPage, WebPage::Client& client);

  /// Whether the page may go to `address`, for the engine to go on. The client is asked for one
  /// that no page may load; from a frame of the page, only when the user did it.
  bool mayNavigate(const QUrl& address, bool mainFrame);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool takeGesture();
  bool takesKey(QObject& window, QKeyEvent& key);
  bool takesFromPage(QObject& receiver, const QEvent& event);
  bool takesTouch(QObject& receiver, const QTouchEvent& event);
  void tellScroll(const QWheelEvent& event);

  std::function<bool(const QObject&)> isForPage_;
  WebPage::Client& client_;
  QElapsedTimer gesture_;    ///< since the latest that led nowhere yet
  bool hasFingers_ = false;  ///< they swipe
};

}  // namespace quorix::qt
