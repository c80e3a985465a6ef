#include "qt/web/quick/QuickPage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>

#include "platform/webkit/PageRules.h"
#include "qt/WebLog.h"
#include "qt/web/WebEngine.h"

namespace quorix::qt {

QuickPage::QuickPage(const Options& options, Client& client)
    : options_(options),
      client_(client),
      input_(
          [this](const QObject& window) {
            return view_ && view_->hasActiveFocus() && view_->window() == &window;
          },
          client) {}

std::unique_ptr<QuickPage> QuickPage::make(QQmlComponent& source, QQuickWebEngineProfile& profile,
                                           QQuickItem& place, const Options& options,
                                           Client& client) {
  std::unique_ptr<QuickPage> page(new QuickPage(options, client));
  QObject* made = source.createWithInitialProperties(
      {{QStringLiteral("page"), QVariant::fromValue<QObject*>(page.get())},
       {QStringLiteral("profile"), QVariant::fromValue(&profile)}});
  page->view_ = qobject_cast<QQuickItem*>(made);
  if (!page->view_) {
    qCWarning(webLog, "no page can be shown: %s", qUtf8Printable(source.errorString()));
    delete made;
    return nullptr;
  }
  QQmlEngine::setObjectOwnership(made, QQmlEngine::CppOwnership);
  page->view_->setFlag(QQuickItem::ItemAcceptsDrops, false);  // files are not for pages
  page->view_->setParentItem(&place);
  return page;
}

QuickPage::~QuickPage() { delete view_; }

void QuickPage::load(const QUrl& address) {
  if (view_ && webkit::mayNavigateTo(address.scheme().toStdString())) {
    view_->setProperty("url", address);
  }
}

void QuickPage::stop() {
  if (view_) QMetaObject::invokeMethod(view_, "stop");
}

void QuickPage::ask() {
  if (!allowsScripts()) return client_.answered();  // nothing can keep it busy for long
  if (view_) QMetaObject::invokeMethod(view_, "ask");
}

bool QuickPage::canGoBack() const { return view_ && view_->property("canGoBack").toBool(); }

void QuickPage::goBack() {
  if (view_) QMetaObject::invokeMethod(view_, "goBack");
}

void QuickPage::goForward() {
  if (view_) QMetaObject::invokeMethod(view_, "goForward");
}

void QuickPage::windowAsked(const QUrl& address, bool byUser) {
  client_.windowAsked(address, byUser);
}

void QuickPage::loadFailed(const QUrl& address, const QString& why, int code) {
  qCWarning(webLog, "%s was not loaded: %s",
            qUtf8Printable(address.toDisplayString(QUrl::RemoveQuery)), qUtf8Printable(why));
  if (WebEngine::broughtNothing(code)) client_.loadFailed();
}

}  // namespace quorix::qt
