#include "qt/QtMainQueue.h"

#include <QObject>
#include <QTimer>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "qt/ApplicationLifetime.h"

namespace quorix::qt {
namespace {

using foundation::MainQueue;

/// Receives the turns while an application object exists. Turns that still wait then are lost, but
/// their work stays in the queue for the next application object.
struct Receiver {
  std::mutex mutex;
  std::unique_ptr<QObject> object;
};

// Never destroyed: other threads may enqueue while the process ends.
Receiver& receiver() {
  static Receiver& instance = *new Receiver;
  return instance;
}

void post(MainQueue::Work turn) {
  // Holds the lock while posting, so that the receiver is not destroyed meanwhile.
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
  {
    const std::scoped_lock lock(receiver().mutex);
    receiver().object = std::make_unique<QObject>();
  }
  MainQueue::install(post, startTimer);  // again: posts a turn for each piece that waits
}

}  // namespace

void QtMainQueue::install() {
  static const bool installed = [] {
    MainQueue::install(post, startTimer);
    followApplication<applicationBegins, applicationEnds>();
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace quorix::qt
