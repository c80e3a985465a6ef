#pragma once

#include <QPointer>
#include <QQuickItem>
#include <memory>

#include "qt/web/WebPageBase.h"

class QQmlComponent;
class QQuickWebEngineProfile;

namespace quorix::qt {

/// A page in a Qt Quick window.
class QuickPage final : public WebPageBase {
 public:
  /// Null if QML cannot make the view; the log says why.
  static std::unique_ptr<QuickPage> make(QQmlComponent& source, QQuickWebEngineProfile& profile,
                                         QQuickItem& place, const Options& options, Client& client);
  ~QuickPage() override;

  QObject* view() const override { return view_; }
  void roundTop(const Top& top) override;
  void ask(std::string_view script) override;
  bool canGo(hosting::HistoryStep step) const override;
  void go(hosting::HistoryStep step) override;

 private:
  using WebPageBase::WebPageBase;
  bool isForPage(const QObject& receiver) const override;

  QPointer<QQuickItem> view_;
};

}  // namespace quorix::qt
