#pragma once

#include <QPointer>
#include <QWebEngineView>

#include "qt/WebComponent.h"
#include "qt/web/PageInput.h"

namespace quorix::qt {

/// A page in a window of widgets.
class WidgetPage final : public WebPage {
 public:
  WidgetPage(QWebEngineProfile& profile, QWidget& place, const Options& options, Client& client);
  ~WidgetPage() override;

  QObject* view() const override { return view_; }
  void load(const foundation::URL& address) override;
  void stopLoad(std::chrono::milliseconds limit) override;
  void ask() override;
  void askForScroll(double time) override;
  bool canGoBack() const override;
  bool canGoForward() const override;
  void goBack() override;
  void goForward() override;

 private:
  bool isReceiver(const QObject& receiver) const;

  QPointer<QWebEngineView> view_;
  Client& client_;
  const bool allowsScripts_;
  PageInput input_;
};

}  // namespace quorix::qt
