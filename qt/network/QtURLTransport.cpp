#include "qt/network/QtURLTransport.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QThread>
#include <cstdlib>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/TransferRules.h"
#include "platform/foundation/URLError.h"
#include "qt/ApplicationLifetime.h"
#include "qt/network/Transfer.h"

namespace quorix::qt {
namespace {

using foundation::TransferQueue;
using foundation::URL;
using foundation::URLError;
using foundation::URLResponse;
using foundation::URLTransport;
using Task = TransferQueue::Task;
using Completions = std::map<Task, URLTransport::Completion>;

/// How long the application's end waits for a protocol or a completion that blocks.
constexpr std::chrono::seconds kPatience{2};

/// The response to a request that the application object's end interrupts.
URLResponse cancelled() {
  return foundation::failure(URLError::canceled, "the application has ended");
}

/// Runs the completions on another thread and waits for them until `deadline`.
void cancel(Completions completions, QDeadlineTimer deadline) {
  const auto rest = std::make_shared<Completions>(std::move(completions));
  const auto done = std::make_shared<std::promise<void>>();
  foundation::asyncOnNewThread([rest, done] {
    for (auto& [task, completion] : *rest) completion(cancelled());
    rest->clear();
    done->set_value();
  });
  done->get_future().wait_for(deadline.remainingTimeAsDuration());
}

/// Performs requests on a thread of its own, for as long as one application object lives.
///
/// Asks the registered protocols for each request, one request after the other. What they do not
/// answer is fetched by a `Transfer`, which requests for the same address share while it lasts.
class NetworkWorker final : public QObject {
 public:
  /// Starts the thread.
  NetworkWorker();

  /// Any thread, until `end`. The completion runs once, on the worker's thread.
  void perform(const URL& url, std::chrono::milliseconds timeLimit,
               URLTransport::Completion completion);

  /// Cancels everything, on another thread, and ends the worker's thread. False if that does not
  /// end within `kPatience`: the host's code on it blocks (a protocol, a completion, a choice of
  /// proxies). When that returns, the thread sleeps for good. The worker must never be destroyed
  /// then. Any other thread, once.
  bool end();

  bool isCurrentThread() const { return QThread::currentThread() == &thread_; }

 private:
  void begin(Task task, const URL& url, std::chrono::milliseconds timeLimit);
  void startTransfers();
  void transferEnded(const TransferQueue::Transfer& ended, const URLResponse& response);
  void complete(Task task, URLResponse response);
  void hostReturned();

  QThread thread_;
  std::mutex mutex_;
  Task lastTask_ = 0;
  Completions completions_;  // of all tasks that have not completed
  bool leftBehind_ = false;

  // Used on the thread only.
  TransferQueue queue_;
  std::map<TransferQueue::Transfer, std::unique_ptr<Transfer>> transfers_;  // running
};

NetworkWorker::NetworkWorker() {
  thread_.setObjectName(QStringLiteral("quorix network"));
  moveToThread(&thread_);
  thread_.start();
}

void NetworkWorker::perform(const URL& url, std::chrono::milliseconds timeLimit,
                            URLTransport::Completion completion) {
  const std::scoped_lock lock(mutex_);
  const Task task = ++lastTask_;
  completions_.emplace(task, std::move(completion));
  QMetaObject::invokeMethod(
      this, [this, task, url, timeLimit] { begin(task, url, timeLimit); }, Qt::QueuedConnection);
}

void NetworkWorker::begin(Task task, const URL& url, std::chrono::milliseconds timeLimit) {
  {
    const std::scoped_lock lock(mutex_);
    if (!completions_.contains(task)) return;  // cancelled
  }
  auto answer = foundation::URLSession::shared().answerInProcess(url);
  hostReturned();
  const QUrl address(QString::fromStdString(url.absoluteString()));
  if (answer) {
    complete(task, *std::move(answer));
  } else if (!foundation::isHTTP(address.scheme().toStdString())) {
    complete(task, foundation::failure(URLError::unsupportedScheme,
                                       "the address is neither http nor https"));
  } else if (!Transfer::namesServer(address)) {
    complete(task, foundation::failure(URLError::hostNotFound, "the address names no server"));
  } else {
    queue_.add(task,
               {address.toEncoded().toStdString(), address.authority().toStdString(), timeLimit});
    startTransfers();
  }
}

void NetworkWorker::startTransfers() {
  while (const auto next = queue_.start()) {
    const auto ended = [this, next](const URLResponse& response) {
      transferEnded(*next, response);
    };
    auto& transfer = transfers_[*next];
    transfer = std::make_unique<Transfer>(
        QUrl::fromEncoded(QByteArray::fromStdString(next->address)), next->timeLimit, ended);
    transfer->begin();
  }
}

void NetworkWorker::transferEnded(const TransferQueue::Transfer& ended,
                                  const URLResponse& response) {
  const auto tasks = queue_.end(ended);
  transfers_.extract(ended).mapped().release()->deleteLater();  // it is the caller
  startTransfers();
  for (const Task task : tasks) complete(task, response);
}

void NetworkWorker::complete(Task task, URLResponse response) {
  Completions::node_type found;
  {
    const std::scoped_lock lock(mutex_);
    found = completions_.extract(task);
    if (found.empty()) return;  // cancelled
  }
  found.mapped()(std::move(response));
  found = {};
  hostReturned();
}

void NetworkWorker::hostReturned() {
  {
    const std::scoped_lock lock(mutex_);
    if (!leftBehind_) return;
  }
  // The thread must not return into Qt, which may be gone by then because the process ends.
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

bool NetworkWorker::end() {
  Completions rest;
  {
    const std::scoped_lock lock(mutex_);
    rest = std::exchange(completions_, {});
  }
  const auto stop = [this] {
    transfers_.clear();
    thread_.quit();
  };
  QMetaObject::invokeMethod(this, stop, Qt::QueuedConnection);
  const QDeadlineTimer deadline(kPatience);
  if (!rest.empty()) cancel(std::move(rest), deadline);
  if (thread_.wait(deadline)) return true;
  const std::scoped_lock lock(mutex_);
  leftBehind_ = true;
  return false;
}

/// The one thread that performs the process's HTTP requests.
///
/// Starts with the first request and sleeps in its event loop between requests. (Qt looks up names
/// on another thread, which ends half a minute later.) Ends with Qt's application object, which
/// waits for it: requests in flight end with an error first. The first request under the next
/// application object starts it again.
///
/// A protocol or a completion that blocks does not block the application: after `kPatience` the
/// thread is left behind. It does nothing more, even if the protocol returns.
struct NetworkThread {
  std::mutex mutex;
  bool applicationAlive = false;
  std::unique_ptr<NetworkWorker> worker;
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
  if (worker->isCurrentThread() || !worker->end()) worker.release();  // its thread uses it
}

void beginWithApplication() {
  const std::scoped_lock lock(networkThread().mutex);
  networkThread().applicationAlive = true;
}

}  // namespace

QtURLTransport::QtURLTransport(std::chrono::milliseconds timeLimit) : timeLimit_(timeLimit) {
  static std::once_flag once;
  std::call_once(once, [] {
    followApplication<beginWithApplication, endWithApplication>();
    std::atexit(endWithApplication);  // for a host that exits with its application still there
  });
}

void QtURLTransport::start(const URL& url, Completion completion) {
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
