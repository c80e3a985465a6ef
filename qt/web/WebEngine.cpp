#include "qt/web/WebEngine.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QOpenGLContext>
#include <QtGlobal>
#include <QtWebEngineQuick>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

#include "platform/webkit/PageScripts.h"
#include "qt/WebComponent.h"

namespace quorix::qt {
namespace {

/// The engine has no sandbox for root: unless that is turned off, it ends the process.
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
    // The engine crashes without a share context. Qt warns that this call comes late: contexts that
    // exist already do not share with the new one, so a toolkit checks its window.
    if (!QOpenGLContext::globalShareContext()) QtWebEngineQuick::initialize();
    return true;
  }();
  return started;
}

void WebEngine::openToReaders() {
  // Newer engines notice when assistive technology starts, but not if it did before them.
  if (QAccessible::isActive()) QAccessible::setActive(true);
}

QList<QWebEngineScript> WebEngine::scripts() {
  const auto make = [](const char* source, QWebEngineScript::ScriptWorldId world) {
    QWebEngineScript script;
    script.setSourceCode(QString::fromLatin1(source));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(world);
    return script;
  };
  auto refusals = make(webkit::PageScripts::refusals, QWebEngineScript::MainWorld);
  refusals.setRunsOnSubFrames(true);
  return {refusals, make(webkit::PageScripts::scrollNotes, QWebEngineScript::ApplicationWorld)};
}

}  // namespace quorix::qt
