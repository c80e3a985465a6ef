#include "qt/NetworkThread.h"

#include <QCoreApplication>
#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

namespace quorix::qt {

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

}  // namespace quorix::qt
