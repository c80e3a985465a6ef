#pragma once

#include <QWebEnginePage>
#include <QWebEngineView>

#include "qt/web/WebPageBase.h"

namespace quorix::qt {

/// A page inside an app. All that a browser would ask its user for is refused without a dialog or a
/// word on the log. The Qt Quick page is WebPage.qml; one table in
/// tests/web/PageRequestsTest.cpp tests both.
class QuietPage : public QWebEnginePage {
  Q_OBJECT

 public:
  QuietPage(QWebEngineProfile& profile, const WebPage::Options& options, WebPageBase& page,
            QObject* parent);

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType, bool mainFrame) override {
    return page_.mayNavigate(address, mainFrame);
  }
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override {
    return {};
  }
  void javaScriptAlert(const QUrl&, const QString&) override {}
  bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
  bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override {
    return false;
  }
  /// Discards the page's console output: a host's log belongs to the host.
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int,
                                const QString&) override {}

 private:
  void settle(const webkit::WebContent::Settings& settings);
  void tell();
  void refuseRequests();
  void refusePermissions();

  WebPageBase& page_;
};

/// Shows a `QuietPage`, and keeps off the screen what the engine opens over it: menus, tooltips and
/// the color dialog, which a page cannot refuse. Main thread.
class QuietView : public QWebEngineView {
  Q_OBJECT

 public:
  explicit QuietView(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void childEvent(QChildEvent* event) override;
};

}  // namespace quorix::qt
