#pragma once

#include <QObject>
#include <QUrl>

#include "qt/Conversions.h"
#include "qt/WebComponent.h"

class QKeyEvent;
class QTouchEvent;
class QWebEngineLoadingInfo;
class QWheelEvent;

namespace quorix::qt {

/// What the pages of both toolkits share: tells the client what the engine tells of a page, and
/// what the user does in it before the engine gets it. Main thread.
///
/// A finger that the client takes ends for the page as a cancelled touch. Escape is sent to the
/// page without its character: the engine returns the keys that a page does not use, except those
/// that stand for a character, which it takes Escape for.
class WebPageBase : public QObject, public WebPage {
  Q_OBJECT

 public:
  explicit WebPageBase(Client& client);

  void load(const foundation::URL& address) override;
  void stopLoad(std::chrono::milliseconds limit) override;

  // The engine tells or asks.
  Q_INVOKABLE bool mayNavigate(const QUrl& address, bool mainFrame) {
    return client_.mayNavigate(address.scheme().toStdString(), toText(address), mainFrame);
  }
  Q_INVOKABLE void askForWindow(const QUrl& address, bool byUser) {
    client_.windowAsked(toText(address), byUser);
  }
  Q_INVOKABLE void loadMoved(int percent) { client_.loading(percent); }
  Q_INVOKABLE void loadChanged(const QWebEngineLoadingInfo& info);
  Q_INVOKABLE void processEnded();
  Q_INVOKABLE void answer(const QString& text) { client_.answered(text.toStdString()); }

 protected:
  /// Whether an event for `receiver` is the page's: what the engine has in the page's view, and the
  /// window while the page has the focus.
  virtual bool isForPage(const QObject& receiver) const = 0;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QUrl address() const;
  bool takesFromWindow(QObject& window, QEvent& event);
  bool takesFromPage(QObject& receiver, const QEvent& event);
  bool takesTouch(QObject& receiver, const QTouchEvent& event);
  void tellScroll(const QWheelEvent& event);

  Client& client_;
  bool hasFingers_ = false;  ///< the client took them
};

}  // namespace quorix::qt
