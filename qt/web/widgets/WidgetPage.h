#pragma once

#include <QPointer>
#include <QWebEngineView>

#include "qt/web/WebPageBase.h"

namespace quorix::qt {

/// A page in a window of widgets.
class WidgetPage final : public WebPageBase {
 public:
  WidgetPage(QWebEngineProfile& profile, QWidget& place, const Options& options, Client& client);
  ~WidgetPage() override;

  QObject* view() const override { return view_; }
  void ask(std::string_view script) override;
  bool canGo(hosting::HistoryStep step) const override;
  void go(hosting::HistoryStep step) override;

 private:
  bool isForPage(const QObject& receiver) const override;

  QPointer<QWebEngineView> view_;
};

}  // namespace quorix::qt
