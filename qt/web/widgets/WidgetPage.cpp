#include "qt/web/widgets/WidgetPage.h"

#include <QWebEngineHistory>
#include <QWindow>

#include "qt/Conversions.h"
#include "qt/WebLog.h"
#include "qt/web/widgets/QuietPage.h"
#include "qt/web/widgets/QuietView.h"

namespace quorix::qt {

WidgetPage::WidgetPage(QWebEngineProfile& profile, QWidget& place, const Options& options,
                       Client& client)
    : view_(new QuietView(&place)),
      client_(client),
      allowsScripts_(options.settings.allowsContentJavaScript),
      input_([this](const QObject& window) { return hasFocusIn(window); }, client) {
  view_->setPage(new QuietPage(profile, options, client, input_, view_));
}

WidgetPage::~WidgetPage() { delete view_; }

bool WidgetPage::hasFocusIn(const QObject& window) const {
  const QWidget* focused = view_ ? view_->window()->focusWidget() : nullptr;
  return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &window;
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

bool WidgetPage::canGoBack() const { return view_ && view_->history()->canGoBack(); }

void WidgetPage::goBack() {
  if (view_) view_->back();
}

void WidgetPage::goForward() {
  if (view_) view_->forward();
}

}  // namespace quorix::qt
