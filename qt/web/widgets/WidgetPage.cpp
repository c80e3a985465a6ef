#include "qt/web/widgets/WidgetPage.h"

#include <QWebEngineHistory>
#include <QWindow>

#include "qt/web/widgets/QuietPage.h"

namespace quorix::qt {

WidgetPage::WidgetPage(QWebEngineProfile& profile, QWidget& place, Options options)
    : view_(new QWebEngineView(&place)),
      escape_([this](const QObject& window) { return hasFocusIn(window); }) {
  view_->setContextMenuPolicy(Qt::NoContextMenu);
  view_->setPage(new QuietPage(profile, std::move(options), view_));
}

WidgetPage::~WidgetPage() { delete view_; }

bool WidgetPage::hasFocusIn(const QObject& window) const {
  const QWidget* focused = view_ ? view_->window()->focusWidget() : nullptr;
  return focused && view_->isAncestorOf(focused) && view_->window()->windowHandle() == &window;
}

void WidgetPage::load(const QUrl& address) {
  if (view_ && QuietPage::mayNavigateTo(address)) view_->load(address);
}

bool WidgetPage::canGoBack() const { return view_ && view_->history()->canGoBack(); }

void WidgetPage::goBack() {
  if (view_) view_->back();
}

void WidgetPage::goForward() {
  if (view_) view_->forward();
}

}  // namespace quorix::qt
