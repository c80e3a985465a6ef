#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "qt/Conversions.h"
#include "qt/WebComponent.h"
#include "qt/web/PageInput.h"
#include "qt/web/WebEngine.h"

class QQuickWebEngineProfile;

namespace quorix::qt {

/// A page in a Qt Quick window, and what its QML needs to know.
class QuickPage : public QObject, public WebPage {
  Q_OBJECT
  Q_PROPERTY(QColor background READ background CONSTANT)
  Q_PROPERTY(QWebEngineScript refusals READ refusals CONSTANT)
  Q_PROPERTY(QWebEngineScript scrollNotes READ scrollNotes CONSTANT)
  Q_PROPERTY(bool allowsScripts READ allowsScripts CONSTANT)
  Q_PROPERTY(bool opensWindowsUnasked READ opensWindowsUnasked CONSTANT)
  Q_PROPERTY(double topHeight READ topHeight NOTIFY topChanged)
  Q_PROPERTY(double topRadius READ topRadius NOTIFY topChanged)
  Q_PROPERTY(double pixelRatio READ pixelRatio NOTIFY topChanged)

 public:
  /// Null, with the reason on the log, when QML cannot make the view.
  static std::unique_ptr<QuickPage> make(QQmlComponent& source, QQuickWebEngineProfile& profile,
                                         QQuickItem& place, const Options& options, Client& client);
  ~QuickPage() override;

  QObject* view() const override { return view_; }
  void roundTop(const Top& top) override;
  void load(const foundation::URL& address) override;
  void stopLoad(std::chrono::milliseconds limit) override;
  void ask() override;
  void askForScroll(double time) override;
  bool canGoBack() const override;
  bool canGoForward() const override;
  void goBack() override;
  void goForward() override;

  QColor background() const { return options_.background; }
  QWebEngineScript refusals() const { return WebEngine::refusals(); }
  QWebEngineScript scrollNotes() const { return WebEngine::scrollNotes(); }
  bool allowsScripts() const { return options_.settings.allowsContentJavaScript; }
  bool opensWindowsUnasked() const {
    return options_.settings.javaScriptCanOpenWindowsAutomatically;
  }
  double topHeight() const { return top_.height; }
  double topRadius() const { return top_.radius; }
  double pixelRatio() const { return top_.pixelRatio; }
  Q_INVOKABLE bool mayNavigate(const QUrl& address, bool mainFrame) {
    return input_.mayNavigate(address, mainFrame);
  }
  Q_INVOKABLE void windowAsked(const QUrl& address, bool byUser) {
    client_.windowAsked(toText(address), byUser);
  }
  Q_INVOKABLE void loading(int percent) { client_.loading(percent); }
  Q_INVOKABLE void loadEnded() { client_.loadEnded(); }
  Q_INVOKABLE void loadFailed(const QUrl& address, const QString& why, int code) {
    WebEngine::loadFailed(client_, address, why, code);
  }
  Q_INVOKABLE void processEnded();
  Q_INVOKABLE void answered() { client_.answered(); }
  Q_INVOKABLE void scrollAnswered(bool used) { client_.scrollAnswered(used); }

 signals:
  void topChanged();

 private:
  QuickPage(const Options& options, Client& client);
  bool isReceiver(const QObject& receiver) const;
  QUrl address() const;

  Options options_;
  Client& client_;
  QPointer<QQuickItem> view_;
  Top top_;
  PageInput input_;
};

/// Pages for Qt Quick windows, all in one profile off the record. Lives as long as the application.
class QuickWebComponent final : public WebComponent {
 public:
  QuickWebComponent();
  ~QuickWebComponent();

  std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                WebPage::Client& client) override;

 private:
  std::unique_ptr<QQuickWebEngineProfile> profile_;
  QQmlEngine engine_;
  std::unique_ptr<QQmlComponent> source_;
};

}  // namespace quorix::qt
