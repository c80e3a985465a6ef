#include "qt/web/quick/QuickWebComponent.h"

#include <QOpenGLContext>
#include <QQuickWebEngineProfile>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "qt/ApplicationLifetime.h"
#include "qt/WebLog.h"
#include "qt/web/WebEngine.h"
#include "qt/web/quick/QuickPage.h"
#include "qt/web/quick/RoundedTop.h"

namespace quorix::qt {
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
  if (!profile_) profile_ = std::make_unique<QQuickWebEngineProfile>();  // off the record
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
