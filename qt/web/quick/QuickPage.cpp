#include "qt/web/quick/QuickPage.h"

#include <QOpenGLContext>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"
#include "qt/web/WebEngine.h"
#include "qt/web/quick/RoundedTop.h"

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

namespace {

/// Whether what the engine draws can be seen in `window`: where both draw with OpenGL, their
/// contexts have to share, and a context that is there already can no longer begin to.
bool reaches(QQuickWindow& window) {
  QSGRendererInterface* drawn = window.rendererInterface();
  if (drawn->graphicsApi() != QSGRendererInterface::OpenGL) return true;
  auto* context = static_cast<QOpenGLContext*>(
      drawn->getResource(&window, QSGRendererInterface::OpenGLContextResource));
  return !context || QOpenGLContext::areSharing(context, QOpenGLContext::globalShareContext());
}

}  // namespace

QuickWebComponent::QuickWebComponent() = default;
QuickWebComponent::~QuickWebComponent() = default;

std::unique_ptr<WebPage> QuickWebComponent::open(QObject& place, const WebPage::Options& options,
                                                 WebPage::Client& client) {
  auto* item = qobject_cast<QQuickItem*>(&place);
  if (!item || !item->window() || !WebEngine::start()) return nullptr;
  if (!reaches(*item->window())) {
    qCWarning(
        webLog,
        "no page can be shown in this window. Call "
        "QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts) before making the application");
    return nullptr;
  }
  if (!profile_) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    // Off the record for want of a name; without one at all, the engine writes into the log.
    profile_ = std::make_unique<QQuickWebEngineProfile>(QString());
#else
    profile_ = std::make_unique<QQuickWebEngineProfile>();  // off the record
#endif
    WebEngine::openToReaders();
  }
  if (!source_) {
    qmlRegisterType<RoundedTop>("Quorix.Web", 1, 0, "RoundedTop");
    source_ = std::make_unique<QQmlComponent>(
        &engine_, QUrl(QStringLiteral("qrc:/quorix/web/quick/WebPage.qml")));
  }
  return QuickPage::make(*source_, *profile_, *item, options, client);
}

}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebComponent* quorixWebComponent(int version) {
  using namespace quorix::qt;
  if (version != webComponentVersion) return nullptr;
  return &applicationLifetime<QuickWebComponent>();
}
