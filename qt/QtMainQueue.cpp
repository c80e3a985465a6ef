#include "qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/foundation/MainQueue.h"

namespace quorix::qt {
namespace {

using foundation::MainQueue;

/// Takes the turns, for as long as there is an application object. Turns that it has not taken then
/// are lost with it; their work waits in the queue for the next one.
struct Receiver {
  std::mutex mutex;
  std::unique_ptr<QObject> object;
};

// Never destroyed: other threads may still enqueue while the process ends.
Receiver& receiver() {
  static Receiver& instance = *new Receiver;
  return instance;
}

void post(MainQueue::Work turn) {
  // The lock is held while posting, so that the receiver cannot go away in between.
  const std::scoped_lock lock(receiver().mutex);
  QObject* const object = receiver().object.get();
  if (object) QMetaObject::invokeMethod(object, std::move(turn), Qt::QueuedConnection);
}

void startTimer(std::chrono::milliseconds delay, MainQueue::Work work) {
  QObject* const object = receiver().object.get();
  if (object) QTimer::singleShot(delay, object, std::move(work));
}

void applicationEnds() {
  std::unique_ptr<QObject> object;
  const std::scoped_lock lock(receiver().mutex);
  object = std::move(receiver().object);
}

void applicationBegins() {
  qAddPostRoutine(applicationEnds);  // Qt forgets its post routines with each application
  {
    const std::scoped_lock lock(receiver().mutex);
    receiver().object = std::make_unique<QObject>();
  }
  MainQueue::install(post, startTimer);  // again: a turn for each piece that waits
}

}  // namespace

void QtMainQueue::install() {
  static const bool installed = [] {
    MainQueue::install(post, startTimer);
    qAddPreRoutine(applicationBegins);  // at once when there is an application already
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace quorix::qt
