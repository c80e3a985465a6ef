#include "qt/QtMainQueue.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>
#include <deque>
#include <memory>
#include <mutex>
#include <utility>

#include "platform/foundation/MainQueue.h"

namespace quorix::qt {
namespace {

using Work = foundation::MainQueue::Work;

// The work is kept here and Qt is only told to take a turn: an event dies with its receiver, and
// work must not.
struct Queue {
  std::mutex mutex;
  std::deque<Work> waiting;
  std::unique_ptr<QObject> receiver;  // of the turns; as long as there is an application object
};

// Never destroyed: other threads may still enqueue while the process ends.
Queue& queue() {
  static Queue& instance = *new Queue;
  return instance;
}

void runNext() {
  Queue& q = queue();
  Work work;
  {
    const std::scoped_lock lock(q.mutex);
    if (q.waiting.empty()) return;
    work = std::move(q.waiting.front());
    q.waiting.pop_front();
  }
  work();
}

void postTurn(QObject* receiver) {
  QMetaObject::invokeMethod(
      receiver, [] { runNext(); }, Qt::QueuedConnection);
}

void enqueue(Work work) {
  Queue& q = queue();
  // The lock is held while posting, so that the receiver cannot go away in between.
  const std::scoped_lock lock(q.mutex);
  q.waiting.push_back(std::move(work));
  if (q.receiver) postTurn(q.receiver.get());
}

void startTimer(std::chrono::milliseconds delay, Work work) {
  Queue& q = queue();
  if (q.receiver) QTimer::singleShot(delay, q.receiver.get(), std::move(work));
}

void applicationEnds() {
  Queue& q = queue();
  std::unique_ptr<QObject> receiver;
  const std::scoped_lock lock(q.mutex);
  receiver = std::move(q.receiver);
}

void applicationBegins() {
  qAddPostRoutine(applicationEnds);  // Qt forgets its post routines with each application
  Queue& q = queue();
  const std::scoped_lock lock(q.mutex);
  q.receiver = std::make_unique<QObject>();
  for (std::size_t turn = 0; turn < q.waiting.size(); ++turn) postTurn(q.receiver.get());
}

}  // namespace

void QtMainQueue::install() {
  static const bool installed = [] {
    qAddPreRoutine(applicationBegins);  // at once when there is an application already
    foundation::MainQueue::install(enqueue, startTimer);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace quorix::qt
