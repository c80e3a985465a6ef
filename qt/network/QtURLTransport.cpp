#include "qt/network/QtURLTransport.h"

#include <QCoreApplication>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "qt/network/NetworkWorker.h"

namespace quorix::qt {
namespace {

/// The one thread that performs the process's HTTP requests.
///
/// It starts with the first request and sleeps in its event loop between requests; a program that
/// never asks for anything never has it. (Qt looks up names on another thread, which ends half a
/// minute later.) It ends with Qt's application object, which waits for it: what is still in flight
/// ends with an error first. The next application object's first request starts it anew.
///
/// A protocol or a completion that blocks does not keep the application: after
/// `NetworkWorker::kPatience` the thread is left behind. It does nothing more, even if the protocol
/// returns.
class NetworkThread {
 public:
  using Request = NetworkWorker::Request;
  using Completion = NetworkWorker::Completion;

  static NetworkThread& shared();

  /// Performs `request` and calls `completion` exactly once: on this thread, or on a thread of its
  /// own when no application object is alive. A completion must not wait for the main thread, which
  /// may be waiting for this one. Any thread.
  void perform(Request request, Completion completion);

 private:
  NetworkThread() = default;
  static NetworkThread& instance();
  static void applicationBegins();
  static void applicationEnds();

  std::mutex mutex_;
  bool applicationAlive_ = false;
  std::unique_ptr<NetworkWorker> worker_;
  std::vector<std::unique_ptr<NetworkWorker>> leftBehind_;
};

// Never destroyed: other threads may still ask for something while the process ends.
NetworkThread& NetworkThread::instance() {
  static NetworkThread& thread = *new NetworkThread;
  return thread;
}

NetworkThread& NetworkThread::shared() {
  static const bool watching = [] {
    qAddPreRoutine(applicationBegins);  // at once when there is an application already
    std::atexit(applicationEnds);       // for a host that exits with its application still there
    return true;
  }();
  static_cast<void>(watching);
  return instance();
}

void NetworkThread::perform(Request request, Completion completion) {
  {
    const std::scoped_lock lock(mutex_);
    if (applicationAlive_) {
      if (!worker_) worker_ = std::make_unique<NetworkWorker>();
      worker_->perform(std::move(request), std::move(completion));
      return;
    }
  }
  const auto end = [completion = std::move(completion)] { completion(cancelled()); };
  try {
    std::thread(end).detach();
  } catch (const std::system_error&) {
    end();  // no thread is to be had
  }
}

void NetworkThread::applicationBegins() {
  qAddPostRoutine(applicationEnds);  // Qt forgets its post routines with each application
  NetworkThread& self = instance();
  const std::scoped_lock lock(self.mutex_);
  self.applicationAlive_ = true;
}

void NetworkThread::applicationEnds() {
  NetworkThread& self = instance();
  std::unique_ptr<NetworkWorker> worker;
  {
    const std::scoped_lock lock(self.mutex_);
    self.applicationAlive_ = false;
    worker = std::move(self.worker_);
  }
  if (!worker) return;
  // On the worker's own thread a completion ends the process.
  if (!worker->isCurrentThread() && worker->end()) return;
  const std::scoped_lock lock(self.mutex_);
  self.leftBehind_.push_back(std::move(worker));
}

}  // namespace

QtURLTransport::QtURLTransport(std::chrono::milliseconds timeLimit) : timeLimit_(timeLimit) {
  NetworkThread::shared();  // from here on it knows whether there is an application object
}

void QtURLTransport::start(const foundation::URL& url, Completion completion) {
  const QUrl address(QString::fromStdString(url.absoluteString()));
  NetworkThread::shared().perform({url, address, timeLimit_}, std::move(completion));
}

}  // namespace quorix::qt
