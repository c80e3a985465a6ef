#include "qt/web/quick/QuickPage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>

#include "qt/Conversions.h"
#include "qt/WebLog.h"

namespace quorix::qt {

QuickPage::QuickPage(const Options& options, Client& client)
    : options_(options),
      client_(client),
      input_([this](const QObject& receiver) { return isReceiver(receiver); }, client) {}

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

void QuickPage::roundTop(const Top& top) {
  if (top_ == top) return;
  top_ = top;
  emit topChanged();
}

bool QuickPage::contains(const QPointF& point) const {
  return view_ && QRectF({}, view_->size()).adjusted(0, top_.height, 0, 0).contains(point);
}

bool QuickPage::isReceiver(const QObject& receiver) const {
  if (!view_) return false;
  const auto* item = qobject_cast<const QQuickItem*>(&receiver);
  if (item) return view_->isAncestorOf(item);
  return view_->hasActiveFocus() && view_->window() == &receiver;
}

void QuickPage::load(const foundation::URL& address) {
  if (view_) view_->setProperty("url", toQUrl(address));
}

void QuickPage::stopLoad(std::chrono::milliseconds limit) {
  if (!view_) return;
  logNothingCame(address(), limit);
  QMetaObject::invokeMethod(view_, "stop");
}

void QuickPage::ask() {
  if (!allowsScripts()) return client_.answered();  // nothing can keep it busy for long
  if (view_) QMetaObject::invokeMethod(view_, "ask");
}

void QuickPage::askForScroll(double time) {
  if (!view_) return;
  QMetaObject::invokeMethod(view_, "askForScroll", Q_ARG(QString, WebEngine::scrollAnswer(time)));
}

bool QuickPage::canGoForward() const { return view_ && view_->property("canGoForward").toBool(); }

bool QuickPage::canGoBack() const { return view_ && view_->property("canGoBack").toBool(); }

void QuickPage::goBack() {
  if (view_) QMetaObject::invokeMethod(view_, "goBack");
}

void QuickPage::goForward() {
  if (view_) QMetaObject::invokeMethod(view_, "goForward");
}

QUrl QuickPage::address() const { return view_ ? view_->property("url").toUrl() : QUrl(); }

void QuickPage::processEnded() {
  logEnded(address());
  client_.processEnded();
}

}  // namespace quorix::qt
