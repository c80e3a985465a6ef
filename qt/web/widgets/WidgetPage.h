#pragma once

#include <QPointer>
#include <QWebEngineView>

#include "qt/WebPage.h"

namespace quorix::qt {

/// A page in a window of widgets.
class WidgetPage final : public WebPage {
 public:
  WidgetPage(QWebEngineProfile& profile, QWidget& place, Options options);
  ~WidgetPage() override;

  QObject* view() const override { return view_; }
  void load(const QUrl& address) override;
  bool canGoBack() const override;
  void goBack() override;
  void goForward() override;

 private:
  QPointer<QWebEngineView> view_;
};

}  // namespace quorix::qt
