#include "qt/web/widgets/WidgetPage.h"

#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWidget>
#include <QWindow>
#include <memory>

#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"
#include "qt/WebComponent.h"
#include "qt/web/WebEngine.h"
#include "qt/web/widgets/QuietPage.h"

namespace quorix::qt {

WidgetPage::WidgetPage(QWebEngineProfile& profile, QWidget& place, const Options& options,
                       Client& client)
    : view_(new QuietView(&place)),
      client_(client),
      allowsScripts_(options.settings.allowsContentJavaScript),
      input_([this](const QObject& receiver) { return isReceiver(receiver); }, client) {
  view_->setPage(new QuietPage(profile, options, client, input_, view_));
}

WidgetPage::~WidgetPage() { delete view_; }

bool WidgetPage::isReceiver(const QObject& receiver) const {
  if (!view_) return false;
  const auto* widget = qobject_cast<const QWidget*>(&receiver);
  if (widget) return view_->isAncestorOf(widget);
  const QWidget* focused = view_->window()->focusWidget();
  return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &receiver;
}

void WidgetPage::load(const foundation::URL& address) {
  if (view_) view_->load(toQUrl(address));
}

void WidgetPage::stopLoad(std::chrono::milliseconds limit) {
  if (!view_) return;
  logNothingCame(view_->url(), limit);
  view_->stop();
}

void WidgetPage::ask() {
  if (!allowsScripts_) return client_.answered();  // nothing can keep it busy for long
  if (!view_) return;
  // The engine also calls back when the page is taken away.
  view_->page()->runJavaScript(QStringLiteral("0"), [this, asked = view_](const QVariant& answer) {
    if (asked && answer.isValid()) client_.answered();
  });
}

void WidgetPage::askForScroll(double time) {
  if (!view_) return;
  view_->page()->runJavaScript(WebEngine::scrollAnswer(time), QWebEngineScript::ApplicationWorld,
                               [this, asked = view_](const QVariant& used) {
                                 if (!asked) return;
                                 const bool unused =
                                     used.typeId() == QMetaType::Bool && !used.toBool();
                                 client_.scrollAnswered(!unused);
                               });
}

bool WidgetPage::canGoForward() const { return view_ && view_->history()->canGoForward(); }

bool WidgetPage::canGoBack() const { return view_ && view_->history()->canGoBack(); }

void WidgetPage::goBack() {
  if (view_) view_->back();
}

void WidgetPage::goForward() {
  if (view_) view_->forward();
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
