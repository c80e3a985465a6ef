#include "qt/web/WebEngine.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QOpenGLContext>
#include <QtGlobal>
#include <QtWebEngineQuick>

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

void WebEngine::openToReaders() {
  // Newer engines notice when assistive technology comes, but not that it is there already.
  if (QAccessible::isActive()) QAccessible::setActive(true);
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

QWebEngineScript WebEngine::scrollNotes() {
  QWebEngineScript script;
  script.setSourceCode(QStringLiteral(R"(
    (() => {
      let seen = 0, used = 0;
      const scrolls = (element, x) => {
        const style = getComputedStyle(element);
        const whole = element === document.scrollingElement;
        if (whole ? style.overflowX === 'hidden' : !/auto|scroll/.test(style.overflowX)) return false;
        if (style.overscrollBehaviorX !== 'auto') return true;
        const room = element.scrollWidth - element.clientWidth;
        const left = element.scrollLeft + (style.direction === 'rtl' ? room : 0);
        return x < 0 ? left >= 1 : left <= room - 1;
      };
      addEventListener('wheel', event => {
        if (!event.deltaX) return;
        seen = Date.now();
        const uses = event.defaultPrevented || event.composedPath().some(
            element => element instanceof Element && scrolls(element, event.deltaX));
        if (uses) used = seen;
      }, {passive: true});
      globalThis.quorixUsedScroll = since => seen < since ? null : used >= since;
    })())"));
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  return script;
}

QString WebEngine::scrollAnswer(double time) {
  return QStringLiteral("quorixUsedScroll(%1)").arg(time, 0, 'f', 0);
}

void WebEngine::loadFailed(WebPage::Client& client, const QUrl& address, const QString& why,
                           int code) {
  logNotLoaded(address, why);
  // From here down they are the network's, the server's certificate's and HTTP's own.
  constexpr int broughtNothing = -100;
  if (code <= broughtNothing) client.loadFailed();
}

}  // namespace quorix::qt
