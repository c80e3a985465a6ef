#include "qt/web/WebPageBase.h"

#include <QAccessible>
#include <QDateTime>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QOpenGLContext>
#include <QTouchEvent>
#include <QWebEngineLoadingInfo>
#include <QWheelEvent>
#include <QtWebEngineQuick>
#include <utility>

#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

#include "platform/webkit/PageScripts.h"

namespace quorix::qt {
namespace {

using Phase = hosting::PointerEvent::Phase;

/// Logs the page's address without its query, which may name the shopper.
void logPage(const QUrl& address, const QString& what) {
  qCWarning(webLog, "%s %s", qUtf8Printable(address.toDisplayString(QUrl::RemoveQuery)),
            qUtf8Printable(what));
}

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

bool WebPageBase::startEngine() {
  static const bool started = [] {
    if (isRefused()) return false;
    // The engine crashes without a share context. Qt warns that this call comes late: contexts that
    // exist already do not share with the new one, so a toolkit checks its window.
    if (!QOpenGLContext::globalShareContext()) QtWebEngineQuick::initialize();
    return true;
  }();
  return started;
}

void WebPageBase::openToReaders() {
  // Newer engines notice when assistive technology starts, but not if it did before them.
  if (QAccessible::isActive()) QAccessible::setActive(true);
}

QList<QWebEngineScript> WebPageBase::scripts() {
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

WebPageBase::WebPageBase(Client& client) : client_(client) { qApp->installEventFilter(this); }

QUrl WebPageBase::address() const { return view() ? view()->property("url").toUrl() : QUrl(); }

void WebPageBase::load(const foundation::URL& address) {
  if (view()) view()->setProperty("url", toQUrl(address));
}

void WebPageBase::stopLoad(std::chrono::milliseconds limit) {
  if (!view()) return;
  logPage(address(), QStringLiteral("was not loaded: nothing came for %1 ms").arg(limit.count()));
  QMetaObject::invokeMethod(view(), "stop");
}

void WebPageBase::loadChanged(int status, const QUrl& address, const QString& error, int code) {
  if (status == QWebEngineLoadingInfo::LoadStartedStatus) return client_.loading(0);
  const bool failed = status == QWebEngineLoadingInfo::LoadFailedStatus;
  if (failed) logPage(address, QStringLiteral("was not loaded: ") + error);
  client_.loadEnded(failed ? code : 0);
}

void WebPageBase::processEnded() {
  logPage(address(), QStringLiteral("ended: its process crashed or was killed"));
  client_.processEnded();
}

// Input.

bool WebPageBase::eventFilter(QObject* watched, QEvent* event) {
  return watched->isWindowType() ? takesFromWindow(*watched, *event)
                                 : takesFromPage(*watched, *event);
}

bool WebPageBase::takesFromWindow(QObject& window, QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress;
  const bool isGesture =
      isKey || event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::TouchEnd;
  if (!isGesture || !isForPage(window)) return false;
  auto* key = isKey ? static_cast<QKeyEvent*>(&event) : nullptr;
  const bool escapes = key && key->key() == Qt::Key_Escape;
  if (escapes && !key->text().isEmpty()) {
    QKeyEvent bare(key->type(), key->key(), key->modifiers(), key->nativeScanCode(),
                   key->nativeVirtualKey(), key->nativeModifiers(), QString(), key->isAutoRepeat());
    bare.setTimestamp(key->timestamp());
    QCoreApplication::sendEvent(&window, &bare);  // this function gets it too
    key->setAccepted(bare.isAccepted());
    return true;
  }
  client_.gestured();
  if (escapes || (key && key->key() == Qt::Key_Back)) client_.closingKeyGiven();
  return false;
}

bool WebPageBase::takesFromPage(QObject& receiver, const QEvent& event) {
  switch (event.type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return isForPage(receiver) && takesTouch(receiver, static_cast<const QTouchEvent&>(event));
    case QEvent::Wheel:
      if (isForPage(receiver)) tellScroll(static_cast<const QWheelEvent&>(event));
      return false;
    default:
      return false;
  }
}

bool WebPageBase::takesTouch(QObject& receiver, const QTouchEvent& event) {
  if (event.points().isEmpty()) return false;
  const auto phase = event.type() == QEvent::TouchBegin ? Phase::pressed
                     : event.type() == QEvent::TouchEnd ? Phase::released
                                                        : Phase::moved;
  const bool takes = client_.touched({phase, toPoint(event.points().constFirst().position()),
                                      static_cast<int>(event.points().size()),
                                      receiver.property("width").toDouble()});
  const bool had = std::exchange(hasFingers_, takes);
  if (takes && !had) {
    QTouchEvent cancel(QEvent::TouchCancel, event.pointingDevice(), event.modifiers());
    QCoreApplication::sendEvent(&receiver, &cancel);
  }
  return takes;
}

/// A mouse's wheel reports no phases: only trackpads swipe.
void WebPageBase::tellScroll(const QWheelEvent& event) {
  if (event.phase() == Qt::NoScrollPhase) return;
  const bool begins = event.phase() == Qt::ScrollBegin;
  client_.scrolled({begins, begins || event.phase() == Qt::ScrollUpdate,
                    double(event.pixelDelta().x()), double(event.pixelDelta().y()),
                    double(QDateTime::currentMSecsSinceEpoch())});
}

}  // namespace quorix::qt
