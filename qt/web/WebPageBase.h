#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <QWebEngineScript>

#include "qt/Conversions.h"
#include "qt/WebComponent.h"

class QTouchEvent;
class QWheelEvent;

namespace quorix::qt {

/// Shared by the pages of both toolkits: tells the client what the engine reports, and what the
/// user does in the page before the engine gets it. Main thread.
///
/// When the client takes the fingers, the page gets a cancelled touch. Escape reaches the page
/// without its character: the engine returns a key that the page does not use only if the key has
/// no character.
class WebPageBase : public QObject, public WebPage {
  Q_OBJECT

 public:
  /// Starts the engine on the first call. False if it would end the process; the log says why. The
  /// library leaves the engine's sandbox and flags to the host.
  static bool startEngine();

  /// Lets assistive technology read pages. Call it after the first profile and before its first
  /// page.
  static void openToReaders();

  /// The scripts that run in each page beside its own.
  static QList<QWebEngineScript> scripts();

  explicit WebPageBase(Client& client);

  void load(const foundation::URL& address) override;
  void stopLoad(std::chrono::milliseconds limit) override;

  // What the engine reports or asks.
  Q_INVOKABLE bool mayNavigate(const QUrl& address, bool mainFrame) {
    return client_.mayNavigate(address.scheme().toStdString(), toText(address), mainFrame);
  }
  Q_INVOKABLE void askForWindow(const QUrl& address, bool byUser) {
    client_.windowAsked(toText(address), byUser);
  }
  Q_INVOKABLE void loadMoved(int percent) { client_.loading(percent); }
  /// `status` is a `QWebEngineLoadingInfo::LoadStatus`. The fields come one by one, since some
  /// versions of QML cannot pass that type on.
  Q_INVOKABLE void loadChanged(int status, const QUrl& address, const QString& error, int code);
  Q_INVOKABLE void processEnded();
  Q_INVOKABLE void answer(const QString& text) { client_.answered(text.toStdString()); }

 protected:
  /// Whether events for `receiver` are the page's. They are if it is inside the page's view, or if
  /// it is the window and the page has the focus.
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
