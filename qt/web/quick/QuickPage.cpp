#include "qt/web/quick/QuickPage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>

#include "platform/webkit/NavigationRules.h"
#include "qt/WebLog.h"

namespace quorix::qt {

QuickPage::QuickPage(Options options)
    : options_(std::move(options)), escape_([this](const QObject& window) {
        return view_ && view_->hasActiveFocus() && view_->window() == &window;
      }) {}

std::unique_ptr<QuickPage> QuickPage::make(QQmlComponent& source, QQuickWebEngineProfile& profile,
                                           QQuickItem& place, Options options) {
  std::unique_ptr<QuickPage> page(new QuickPage(std::move(options)));
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
  page->view_->setParentItem(&place);
  return page;
}

QuickPage::~QuickPage() { delete view_; }

void QuickPage::load(const QUrl& address) {
  if (view_ && mayNavigateTo(address)) view_->setProperty("url", address);
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

void QuickPage::windowAsked(const QUrl& address) {
  // Not within the engine's own call: who is asked may do anything.
  QMetaObject::invokeMethod(
      this, [this, address] { options_.onNewWindow(address); }, Qt::QueuedConnection);
}

void QuickPage::loadFailed(const QUrl& address, const QString& why) {
  qCWarning(webLog, "%s was not loaded: %s",
            qUtf8Printable(address.toDisplayString(QUrl::RemoveQuery)), qUtf8Printable(why));
}

}  // namespace quorix::qt
