#include "qt/network/QtURLTransport.h"

#include <cstdlib>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/foundation/MainQueue.h"
#include "qt/ApplicationLifetime.h"
#include "qt/network/NetworkWorker.h"

namespace quorix::qt {
namespace {

/// The one thread that performs the process's HTTP requests.
///
/// Starts with the first request and sleeps in its event loop between requests. (Qt looks up names
/// on another thread, which ends half a minute later.) Ends with Qt's application object, which
/// waits for it: requests in flight end with an error first. The first request under the next
/// application object starts it again.
///
/// A protocol or a completion that blocks does not block the application: after
/// `NetworkWorker::kPatience` the thread is left behind. It does nothing more, even if the protocol
/// returns.
struct NetworkThread {
  std::mutex mutex;
  bool applicationAlive = false;
  std::unique_ptr<NetworkWorker> worker;
  std::vector<std::unique_ptr<NetworkWorker>> leftBehind;
};

// Never destroyed: other threads may still ask for something while the process ends.
NetworkThread& networkThread() {
  static NetworkThread& thread = *new NetworkThread;
  return thread;
}

void endWithApplication() {
  NetworkThread& thread = networkThread();
  std::unique_ptr<NetworkWorker> worker;
  {
    const std::scoped_lock lock(thread.mutex);
    thread.applicationAlive = false;
    worker = std::move(thread.worker);
  }
  if (!worker) return;
  // On the worker's own thread: a completion ended the process, and waiting would never end.
  if (!worker->isCurrentThread() && worker->end()) return;
  const std::scoped_lock lock(thread.mutex);
  thread.leftBehind.push_back(std::move(worker));
}

void beginWithApplication() {
  const std::scoped_lock lock(networkThread().mutex);
  networkThread().applicationAlive = true;
}

}  // namespace

QtURLTransport::QtURLTransport(std::chrono::milliseconds timeLimit) : timeLimit_(timeLimit) {
  static const bool watching = [] {
    followApplication<beginWithApplication, endWithApplication>();
    std::atexit(endWithApplication);  // for a host that exits with its application still there
    return true;
  }();
  static_cast<void>(watching);
}

void QtURLTransport::start(const foundation::URL& url, Completion completion) {
  NetworkThread& thread = networkThread();
  {
    const std::scoped_lock lock(thread.mutex);
    if (thread.applicationAlive) {
      if (!thread.worker) thread.worker = std::make_unique<NetworkWorker>();
      thread.worker->perform(url, timeLimit_, std::move(completion));
      return;
    }
  }
  foundation::asyncOnNewThread([completion = std::move(completion)] { completion(cancelled()); });
}

}  // namespace quorix::qt
