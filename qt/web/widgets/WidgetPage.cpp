#include "qt/web/widgets/WidgetPage.h"

#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWidget>
#include <QWindow>
#include <memory>

#include "qt/ApplicationLifetime.h"
#include "qt/web/WebEngine.h"
#include "qt/web/widgets/QuietPage.h"

namespace quorix::qt {

WidgetPage::WidgetPage(QWebEngineProfile& profile, QWidget& place, const Options& options,
                       Client& client)
    : WebPageBase(client), view_(new QuietView(&place)) {
  view_->setPage(new QuietPage(profile, options, *this, view_));
}

WidgetPage::~WidgetPage() { delete view_; }

bool WidgetPage::isForPage(const QObject& receiver) const {
  if (!view_) return false;
  const auto* widget = qobject_cast<const QWidget*>(&receiver);
  if (widget) return view_->isAncestorOf(widget);
  const QWidget* focused = view_->window()->focusWidget();
  return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &receiver;
}

void WidgetPage::ask(std::string_view script) {
  if (!view_) return;
  // The engine also calls back while the page is being deleted.
  view_->page()->runJavaScript(QString::fromStdString(std::string(script)),
                               QWebEngineScript::ApplicationWorld,
                               [this, asked = view_](const QVariant& text) {
                                 if (asked) answer(text.toString());
                               });
}

bool WidgetPage::canGo(hosting::HistoryStep step) const {
  if (!view_) return false;
  const QWebEngineHistory& history = *view_->history();
  return step == hosting::HistoryStep::back ? history.canGoBack() : history.canGoForward();
}

void WidgetPage::go(hosting::HistoryStep step) {
  if (!view_) return;
  step == hosting::HistoryStep::back ? view_->back() : view_->forward();
}

namespace {

/// Pages for windows of widgets, all in one profile off the record. Lives as long as the
/// application.
class WidgetWebComponent final : public WebComponent {
 public:
  std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                WebPage::Client& client) override {
    auto* widget = qobject_cast<QWidget*>(&place);
    if (!widget || !WebEngine::start()) return nullptr;
    if (!profile_) {
      profile_ = std::make_unique<QWebEngineProfile>();  // off the record
      WebEngine::openToReaders();
    }
    return std::make_unique<WidgetPage>(*profile_, *widget, options, client);
  }

 private:
  std::unique_ptr<QWebEngineProfile> profile_;
};

}  // namespace

}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebComponent* quorixWebComponent(int version) {
  using namespace quorix::qt;
  if (version != webComponentVersion) return nullptr;
  return &applicationLifetime<WidgetWebComponent>();
}
