#include "qt/web/quick/QuickPage.h"

#include <QOpenGLContext>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "qt/ApplicationLifetime.h"
#include "qt/web/WebEngine.h"
#include "qt/web/quick/RoundedTop.h"

namespace quorix::qt {

std::unique_ptr<QuickPage> QuickPage::make(QQmlComponent& source, QQuickWebEngineProfile& profile,
                                           QQuickItem& place, const Options& options,
                                           Client& client) {
  std::unique_ptr<QuickPage> page(new QuickPage(client));
  const auto& settings = options.settings;
  QObject* made = source.createWithInitialProperties(
      {{QStringLiteral("page"), QVariant::fromValue<QObject*>(page.get())},
       {QStringLiteral("profile"), QVariant::fromValue(&profile)},
       {QStringLiteral("scripts"), QVariant::fromValue(WebEngine::scripts()).toList()},
       {QStringLiteral("backgroundColor"), options.background},
       {QStringLiteral("allowsScripts"), settings.allowsContentJavaScript},
       {QStringLiteral("opensWindowsUnasked"), settings.javaScriptCanOpenWindowsAutomatically}});
  page->view_ = qobject_cast<QQuickItem*>(made);
  if (!page->view_) {
    qCWarning(webLog, "no page can be shown: %s", qUtf8Printable(source.errorString()));
    delete made;
    return nullptr;
  }
  QQmlEngine::setObjectOwnership(made, QQmlEngine::CppOwnership);
  page->view_->setFlag(QQuickItem::ItemAcceptsDrops, false);  // a page gets no files
  page->view_->setParentItem(&place);
  return page;
}

QuickPage::~QuickPage() { delete view_; }

void QuickPage::roundTop(const Top& top) {
  if (!view_) return;
  view_->setProperty("topRadius", top.radius);
  view_->setProperty("pixelRatio", top.pixelRatio);
  view_->setProperty("topHeight", top.height);
}

bool QuickPage::isForPage(const QObject& receiver) const {
  if (!view_) return false;
  const auto* item = qobject_cast<const QQuickItem*>(&receiver);
  if (item) return view_->isAncestorOf(item);
  return view_->hasActiveFocus() && view_->window() == &receiver;
}

void QuickPage::ask(std::string_view script) {
  if (!view_) return;
  const QString question = QString::fromStdString(std::string(script));
  QMetaObject::invokeMethod(view_, "ask", Q_ARG(QString, question));
}

bool QuickPage::canGo(hosting::HistoryStep step) const {
  const bool back = step == hosting::HistoryStep::back;
  return view_ && view_->property(back ? "canGoBack" : "canGoForward").toBool();
}

void QuickPage::go(hosting::HistoryStep step) {
  const bool back = step == hosting::HistoryStep::back;
  if (view_) QMetaObject::invokeMethod(view_, back ? "goBack" : "goForward");
}

namespace {

/// Whether `window` can show what the engine draws. If both draw with OpenGL, their contexts must
/// share, which a context that exists already can no longer be made to do.
bool reaches(QQuickWindow& window) {
  QSGRendererInterface* drawn = window.rendererInterface();
  if (drawn->graphicsApi() != QSGRendererInterface::OpenGL) return true;
  auto* context = static_cast<QOpenGLContext*>(
      drawn->getResource(&window, QSGRendererInterface::OpenGLContextResource));
  return !context || QOpenGLContext::areSharing(context, QOpenGLContext::globalShareContext());
}

/// Pages for Qt Quick windows, all in one profile off the record. Lives as long as the application.
class QuickWebComponent final : public WebComponent {
 public:
  std::unique_ptr<WebPage> open(QObject& place, const WebPage::Options& options,
                                WebPage::Client& client) override {
    auto* item = qobject_cast<QQuickItem*>(&place);
    if (!item || !item->window() || !WebEngine::start()) return nullptr;
    if (!reaches(*item->window())) {
      qCWarning(webLog,
                "no page can be shown in this window. Call "
                "QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts) before making the "
                "application");
      return nullptr;
    }
    if (!profile_) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
      // An empty name means off the record; the constructor without one makes the engine log.
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

 private:
  std::unique_ptr<QQuickWebEngineProfile> profile_;
  QQmlEngine engine_;
  std::unique_ptr<QQmlComponent> source_;
};

}  // namespace

}  // namespace quorix::qt

extern "C" Q_DECL_EXPORT quorix::qt::WebComponent* quorixWebComponent(int version) {
  using namespace quorix::qt;
  if (version != webComponentVersion) return nullptr;
  return &applicationLifetime<QuickWebComponent>();
}
