#include "qt/Engine.h"

#include <QDesktopServices>
#include <QThread>
#include <QTimer>
#include <cstdlib>
#include <memory>
#include <mutex>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "platform/uikit/URLOpener.h"
#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"
#include "qt/Desktop.h"
#include "qt/network/QtNetworkThread.h"
#include "qt/text/QtFonts.h"

namespace quorix::qt {
namespace {

using foundation::MainQueue;

/// Opens addresses by Qt: with the handler that the host has set for the scheme
/// (`QDesktopServices::setUrlHandler`), or else with that of the desktop or the phone. Does nothing
/// without a `QGuiApplication`. Main thread.
class QtURLOpener final : public uikit::URLOpener {
 public:
  void open(const foundation::URL& url) override {
    if (!guiApplication()) return;
    const QUrl address = toQUrl(url);
    if (address.isValid()) QDesktopServices::openUrl(address);
  }
};

/// The process's transport. Its thread lasts as long as one application object.
const std::shared_ptr<foundation::NetworkTransport>& network() {
  // Never destroyed: other threads may still start requests while the process ends.
  static const auto& transport =
      *new auto(std::make_shared<foundation::NetworkTransport>(makeNetworkThread));
  return transport;
}

/// Receives the turns of the main queue on the application object's thread. Keeps those that wait
/// when the application ends for the next application object.
struct Receiver {
  std::mutex mutex;  ///< Qt does not expect posts while an object gets its first thread
  QObject object;

  void moveTo(QThread* thread) {
    const std::scoped_lock lock(mutex);
    object.moveToThread(thread);
  }
};

Receiver& receiver() {
  static Receiver& instance = *new Receiver;  // never destroyed: other threads may still post
  return instance;
}

/// Each piece of work runs in a turn of the event loop of its own.
void post(MainQueue::Work turn) {
  const std::scoped_lock lock(receiver().mutex);
  QMetaObject::invokeMethod(&receiver().object, std::move(turn), Qt::QueuedConnection);
}

void startTimer(std::chrono::milliseconds delay, MainQueue::Work work) {
  QObject& object = receiver().object;
  if (object.thread() != nullptr) QTimer::singleShot(delay, &object, std::move(work));
}

void applicationEnds() {
  network()->close();
  receiver().moveTo(nullptr);
}

void applicationBegins() {
  receiver().moveTo(QThread::currentThread());
  network()->open();
  qAddPostRoutine(applicationEnds);  // again: Qt forgets its post routines with each application
}

}  // namespace

void installEngine() {
  static std::once_flag once;
  std::call_once(once, [] {
    receiver().moveTo(nullptr);  // until there is an application object
    MainQueue::install(post, startTimer);
    qAddPreRoutine(applicationBegins);  // calls it at once if there is one
    // For a host that exits with its application still there.
    std::atexit([] { network()->close(); });
    Desktop::follow();  // early: the settings service takes a moment to answer
    QtFonts::installSystemLookup();
    foundation::URLSession::shared().install(network());
    uikit::URLOpener::install(std::make_shared<QtURLOpener>());
  });
}

}  // namespace quorix::qt
