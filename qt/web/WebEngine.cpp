#include "qt/web/WebEngine.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QtGlobal>
#include <QtWebEngineQuick>

#include "qt/WebLog.h"

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

namespace quorix::qt {
namespace {

/// The engine does not sandbox for root, and ends a process that asks it to.
bool isRefused() {
#ifdef Q_OS_LINUX
  const bool sandboxed = qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX") &&
                         !qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("--no-sandbox") &&
                         !QCoreApplication::arguments().contains(QStringLiteral("--no-sandbox"));
  if (geteuid() == 0 && sandboxed) {
    qCWarning(webLog, "Qt WebEngine has no sandbox for root, so no page is shown");
    return true;
  }
#endif
  return false;
}

}  // namespace

bool WebEngine::start() {
  static const bool started = [] {
    if (isRefused()) return false;
    // The engine crashes where there is nothing to share with. The call comes late, of which Qt
    // warns; what was drawn before does not share, which is for the toolkits to look at.
    if (!QOpenGLContext::globalShareContext()) QtWebEngineQuick::initialize();
    return true;
  }();
  return started;
}

QWebEngineScript WebEngine::refusals() {
  QWebEngineScript script;
  script.setSourceCode(QStringLiteral(R"(
    if (window.CredentialsContainer) {
      delete window.PublicKeyCredential;
      for (const asked of ['create', 'get']) {
        CredentialsContainer.prototype[asked] =
            () => Promise.reject(new DOMException('', 'NotAllowedError'));
      }
    })"));
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(QWebEngineScript::MainWorld);
  script.setRunsOnSubFrames(true);
  return script;
}

void WebEngine::loadFailed(WebPage::Client& client, const QUrl& address, const QString& why,
                           int code) {
  logNotLoaded(address, why);
  // From here down they are the network's, the server's certificate's and HTTP's own.
  constexpr int broughtNothing = -100;
  if (code <= broughtNothing) client.loadFailed();
}

}  // namespace quorix::qt
