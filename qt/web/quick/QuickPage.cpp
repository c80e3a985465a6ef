#include "qt/web/quick/QuickPage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>

#include "platform/webkit/PageRules.h"
#include "qt/WebLog.h"

namespace quorix::qt {

QuickPage::QuickPage(const Options& options, Client& client)
    : options_(options),
      client_(client),
      escape_(
          [this](const QObject& window) {
            return view_ && view_->hasActiveFocus() && view_->window() == &window;
          },
          [this] { client_.closingKeyGiven(); }) {}

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
  if (view_ && mayNavigateTo(address)) view_->setProperty("url", address);
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

bool QuickPage::mayNavigateTo(const QUrl& address) const {
  return webkit::mayNavigateTo(address.scheme().toStdString());
}

void QuickPage::windowAsked(const QUrl& address, bool byUser) {
  client_.windowAsked(address, byUser);
}

void QuickPage::loadFailed(const QUrl& address, const QString& why) {
  qCWarning(webLog, "%s was not loaded: %s",
            qUtf8Printable(address.toDisplayString(QUrl::RemoveQuery)), qUtf8Printable(why));
}

}  // namespace quorix::qt
