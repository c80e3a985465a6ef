#include "qt/network/NetworkWorker.h"

#include <QDeadlineTimer>
#include <future>
#include <thread>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLError.h"

namespace quorix::qt {
namespace {

using foundation::URL;
using foundation::URLError;
using foundation::URLResponse;
using Completions = std::map<NetworkWorker::Task, NetworkWorker::Completion>;

// Runs the completions on another thread and waits for them, for `kPatience` at most.
void cancelElsewhere(Completions completions) {
  const auto rest = std::make_shared<Completions>(std::move(completions));
  const auto done = std::make_shared<std::promise<void>>();
  foundation::asyncOnNewThread([rest, done] {
    for (auto& [task, completion] : *rest) completion(cancelled());
    rest->clear();
    done->set_value();
  });
  done->get_future().wait_for(NetworkWorker::kPatience);
}

}  // namespace

URLResponse cancelled() {
  return foundation::failure(URLError::canceled, "the application has ended");
}

NetworkWorker::NetworkWorker() {
  thread_.setObjectName(QStringLiteral("quorix network"));
  moveToThread(&thread_);
  thread_.start();
}

void NetworkWorker::perform(const URL& url, std::chrono::milliseconds timeLimit,
                            Completion completion) {
  const std::scoped_lock lock(mutex_);
  const Task task = ++lastTask_;
  completions_.emplace(task, std::move(completion));
  QMetaObject::invokeMethod(
      this, [this, task, url, timeLimit] { begin(task, url, timeLimit); }, Qt::QueuedConnection);
}

void NetworkWorker::begin(Task task, const URL& url, std::chrono::milliseconds timeLimit) {
  {
    const std::scoped_lock lock(mutex_);
    if (ending_) return;  // `cancelAll` comes next
  }
  auto answer = foundation::URLSession::shared().answerInProcess(url);
  stayIfLeftBehind();
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
  Completion completion;
  {
    const std::scoped_lock lock(mutex_);
    const auto found = completions_.find(task);
    if (found == completions_.end()) return;
    completion = std::move(found->second);
    completions_.erase(found);
  }
  completion(std::move(response));
  stayIfLeftBehind();
}

void NetworkWorker::cancelAll() {
  transfers_.clear();
  for (;;) {
    Task task = 0;
    {
      const std::scoped_lock lock(mutex_);
      if (completions_.empty()) break;
      task = completions_.begin()->first;
    }
    complete(task, cancelled());
  }
  {
    const std::scoped_lock lock(mutex_);
    finishing_ = !leftBehind_;
  }
  stayIfLeftBehind();
  thread_.quit();
}

// The thread must not return into Qt, which may be gone by then because the process ends.
void NetworkWorker::stayIfLeftBehind() {
  {
    const std::scoped_lock lock(mutex_);
    if (!leftBehind_) return;
  }
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

bool NetworkWorker::end() {
  {
    const std::scoped_lock lock(mutex_);
    ending_ = true;
  }
  QMetaObject::invokeMethod(
      this, [this] { cancelAll(); }, Qt::QueuedConnection);
  return thread_.wait(QDeadlineTimer(kPatience)) || !leaveBehind();
}

bool NetworkWorker::leaveBehind() {
  std::map<Task, Completion> rest;
  {
    const std::scoped_lock lock(mutex_);
    leftBehind_ = !finishing_;
    if (leftBehind_) rest = std::exchange(completions_, {});
  }
  if (leftBehind_) {
    cancelElsewhere(std::move(rest));
  } else {
    thread_.wait();  // only code of Qt still runs on it
  }
  return leftBehind_;
}

}  // namespace quorix::qt
