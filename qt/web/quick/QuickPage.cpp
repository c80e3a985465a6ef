#include <QOpenGLContext>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <memory>

#include "qt/ApplicationLifetime.h"
#include "qt/web/WebPageBase.h"
#include "qt/web/quick/RoundedTopItem.h"

namespace quorix::qt {
namespace {

/// What all pages in Qt Quick windows share. Lives as long as the application.
struct QuickEngine {
  QuickEngine() {
    qmlRegisterType<RoundedTopItem>("Quorix.Web", 1, 0, "RoundedTopItem");
    source.loadUrl(QUrl(QStringLiteral("qrc:/quorix/web/quick/WebPage.qml")));
    WebPageBase::openToReaders();
  }

#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
  // An empty name means off the record; the constructor without one makes the engine log.
  QQuickWebEngineProfile profile{QString()};
#else
  QQuickWebEngineProfile profile;  // off the record
#endif
  QQmlEngine engine;
  QQmlComponent source{&engine};
};

/// A page in a Qt Quick window.
class QuickPage final : public WebPageBase {
 public:
  /// Without a view if QML cannot make it; the log says why.
  QuickPage(QuickEngine& engine, QQuickItem& place, const Options& options, Client& client)
      : WebPageBase(client) {
    const auto& settings = options.settings;
    QObject* made = engine.source.createWithInitialProperties(
        {{QStringLiteral("page"), QVariant::fromValue<QObject*>(this)},
         {QStringLiteral("profile"), QVariant::fromValue(&engine.profile)},
         {QStringLiteral("scripts"), QVariant::fromValue(scripts()).toList()},
         {QStringLiteral("backgroundColor"), options.background},
         {QStringLiteral("allowsScripts"), settings.allowsContentJavaScript},
         {QStringLiteral("opensWindowsUnasked"), settings.javaScriptCanOpenWindowsAutomatically}});
    view_ = qobject_cast<QQuickItem*>(made);
    if (!view_) {
      qCWarning(webLog, "no page can be shown: %s", qUtf8Printable(engine.source.errorString()));
      delete made;
      return;
    }
    QQmlEngine::setObjectOwnership(made, QQmlEngine::CppOwnership);
    view_->setFlag(QQuickItem::ItemAcceptsDrops, false);  // a page gets no files
    view_->setParentItem(&place);
  }

  ~QuickPage() override { delete view_; }

  QObject* view() const override { return view_; }

  void roundTop(const Top& top) override {
    if (!view_) return;
    view_->setProperty("topRadius", top.radius);
    view_->setProperty("pixelRatio", top.pixelRatio);
    view_->setProperty("topHeight", top.height);
  }

  void ask(std::string_view script) override {
    if (!view_) return;
    const QString question = QString::fromUtf8(script);
    QMetaObject::invokeMethod(view_, "ask", Q_ARG(QString, question));
  }

  bool canGo(hosting::HistoryStep step) const override {
    const bool back = step == hosting::HistoryStep::back;
    return view_ && view_->property(back ? "canGoBack" : "canGoForward").toBool();
  }

  void go(hosting::HistoryStep step) override {
    const bool back = step == hosting::HistoryStep::back;
    if (view_) QMetaObject::invokeMethod(view_, back ? "goBack" : "goForward");
  }

 private:
  bool isForPage(const QObject& receiver) const override {
    if (!view_) return false;
    const auto* item = qobject_cast<const QQuickItem*>(&receiver);
    if (item) return view_->isAncestorOf(item);
    return view_->hasActiveFocus() && view_->window() == &receiver;
  }

  QPointer<QQuickItem> view_;
};

/// Whether `window` can show what the engine draws. If both draw with OpenGL, their contexts must
/// share, which a context that exists already can no longer be made to do.
bool reaches(QQuickWindow& window) {
  QSGRendererInterface* drawn = window.rendererInterface();
  if (drawn->graphicsApi() != QSGRendererInterface::OpenGL) return true;
  auto* context = static_cast<QOpenGLContext*>(
      drawn->getResource(&window, QSGRendererInterface::OpenGLContextResource));
  if (!context || QOpenGLContext::areSharing(context, QOpenGLContext::globalShareContext())) {
    return true;
  }
  qCWarning(webLog,
            "no page can be shown in this window. Call "
            "QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts) before making the "
            "application");
  return false;
}

}  // namespace
}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebPage* quorixOpenWebPage7(
    QObject& place, const quorix::qt::WebPage::Options& options,
    quorix::qt::WebPage::Client& client) {
  using namespace quorix::qt;
  auto* item = qobject_cast<QQuickItem*>(&place);
  const bool shows =
      item && item->window() && WebPageBase::startEngine() && reaches(*item->window());
  if (!shows) return nullptr;
  auto page =
      std::make_unique<QuickPage>(applicationLifetime<QuickEngine>(), *item, options, client);
  return page->view() ? page.release() : nullptr;
}
