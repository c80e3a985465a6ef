#include <QPointer>
#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWidget>
#include <QWindow>

#include "qt/ApplicationLifetime.h"
#include "qt/web/widgets/QuietPage.h"

namespace quorix::qt {
namespace {

/// What all pages in windows of widgets share. Lives as long as the application.
struct WidgetEngine {
  WidgetEngine() { WebPageBase::openToReaders(); }

  QWebEngineProfile profile;  // off the record
};

/// A page in a window of widgets.
class WidgetPage final : public WebPageBase {
 public:
  WidgetPage(WidgetEngine& engine, QWidget& place, const Options& options, Client& client)
      : WebPageBase(client), view_(new QuietView(&place)) {
    view_->setPage(new QuietPage(engine.profile, options, *this, view_));
  }

  ~WidgetPage() override { delete view_; }

  QObject* view() const override { return view_; }

  void ask(std::string_view script) override {
    if (!view_) return;
    // The engine also calls back while the page is being deleted.
    const auto answered = [this, asked = view_](const QVariant& text) {
      if (asked) answer(text.toString());
    };
    view_->page()->runJavaScript(QString::fromStdString(std::string(script)),
                                 QWebEngineScript::ApplicationWorld, answered);
  }

  bool canGo(hosting::HistoryStep step) const override {
    if (!view_) return false;
    const QWebEngineHistory& history = *view_->history();
    return step == hosting::HistoryStep::back ? history.canGoBack() : history.canGoForward();
  }

  void go(hosting::HistoryStep step) override {
    if (!view_) return;
    step == hosting::HistoryStep::back ? view_->back() : view_->forward();
  }

 private:
  bool isForPage(const QObject& receiver) const override {
    if (!view_) return false;
    const auto* widget = qobject_cast<const QWidget*>(&receiver);
    if (widget) return view_->isAncestorOf(widget);
    const QWidget* focused = view_->window()->focusWidget();
    return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &receiver;
  }

  QPointer<QWebEngineView> view_;
};

}  // namespace
}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebPage* quorixOpenWebPage7(
    QObject& place, const quorix::qt::WebPage::Options& options,
    quorix::qt::WebPage::Client& client) {
  using namespace quorix::qt;
  auto* widget = qobject_cast<QWidget*>(&place);
  if (!widget || !WebPageBase::startEngine()) return nullptr;
  return new WidgetPage(applicationLifetime<WidgetEngine>(), *widget, options, client);
}
