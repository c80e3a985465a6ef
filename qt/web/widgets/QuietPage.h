#pragma once

#include <QWebEnginePage>

#include "qt/WebPage.h"

namespace quorix::qt {

/// A page that stands in an app: it shows itself and nothing else, and is refused quietly whatever
/// a browser would ask its user for.
class QuietPage : public QWebEnginePage {
  Q_OBJECT

 public:
  QuietPage(QWebEngineProfile& profile, WebPage::Options options, QObject* parent);

  static bool mayNavigateTo(const QUrl& address);

 protected:
  bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override {
    return {};
  }
  void javaScriptAlert(const QUrl&, const QString&) override {}
  bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
  bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override {
    return false;
  }

 private:
  void settle(const webkit::WebContent::Settings& settings);
  void refuseRequests();

  WebPage::Options options_;
};

}  // namespace quorix::qt
