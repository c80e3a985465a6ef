#include "qt/NetworkWorker.h"

#include <QDeadlineTimer>
#include <QHash>
#include <algorithm>
#include <future>
#include <system_error>
#include <thread>
#include <utility>

namespace quorix::qt {
namespace {

using foundation::URLResponse;

using Completions = std::map<NetworkWorker::Task, NetworkWorker::Completion>;

// Waits for the completions, but not longer than for the thread that should have run them.
void cancelElsewhere(Completions completions) {
  const auto rest = std::make_shared<Completions>(std::move(completions));
  const auto done = std::make_shared<std::promise<void>>();
  const auto cancelRest = [rest, done] {
    for (auto& [task, completion] : *rest) completion(cancelled());
    rest->clear();
    done->set_value();
  };
  try {
    std::thread(cancelRest).detach();
  } catch (const std::system_error&) {
    cancelRest();  // no thread is to be had
  }
  done->get_future().wait_for(NetworkWorker::kPatience);
}

}  // namespace

URLResponse cancelled() {
  return transportError(QNetworkReply::OperationCanceledError,
                        QStringLiteral("the application has ended"));
}

NetworkWorker::NetworkWorker() {
  thread_.setObjectName(QStringLiteral("quorix network"));
  moveToThread(&thread_);
  thread_.start();
}

void NetworkWorker::perform(Request request, Completion completion) {
  const std::scoped_lock lock(mutex_);
  completions_.emplace(++lastTask_, std::move(completion));
  waiting_.push_back({lastTask_, std::move(request)});
  QMetaObject::invokeMethod(
      this, [this] { performAll(); }, Qt::QueuedConnection);
}

std::optional<NetworkWorker::Waiting> NetworkWorker::takeNext() {
  const std::scoped_lock lock(mutex_);
  if (ending_ || waiting_.empty()) return std::nullopt;
  Waiting next = std::move(waiting_.front());
  waiting_.pop_front();
  return next;
}

void NetworkWorker::performAll() {
  while (auto next = takeNext()) performOne(*std::move(next));
}

void NetworkWorker::performOne(Waiting waiting) {
  auto answer = foundation::URLSession::shared().answerInProcess(waiting.request.url);
  stayIfLeftBehind();
  if (answer) {
    complete(waiting.task, *std::move(answer));
  } else if (!isHttp(waiting.request.address)) {
    // Qt would read local files and its own resources as readily as pages.
    complete(waiting.task, transportError(QNetworkReply::ProtocolUnknownError,
                                          QStringLiteral("the address is neither http nor https")));
  } else {
    share(waiting.task, waiting.request);
  }
}

void NetworkWorker::share(Task task, const Request& request) {
  const auto same = std::find_if(transfers_.begin(), transfers_.end(), [&](const auto& transfer) {
    return transfer->address() == request.address && transfer->timeLimit() == request.timeLimit;
  });
  if (same != transfers_.end()) return (*same)->join(task);
  transfers_.push_back(std::make_unique<Transfer>(
      request.address, request.timeLimit,
      [this](Transfer& ended, const URLResponse& response) { transferEnded(ended, response); }));
  transfers_.back()->join(task);
  beginTransfers();
}

void NetworkWorker::beginTransfers() {
  QHash<QString, int> running;
  for (const auto& transfer : transfers_) {
    if (transfer->hasBegun()) ++running[transfer->address().authority()];
  }
  for (const auto& transfer : transfers_) {
    if (transfer->hasBegun()) continue;
    int& count = running[transfer->address().authority()];
    if (count >= kTransfersPerHost) continue;
    ++count;
    transfer->begin();
  }
}

void NetworkWorker::transferEnded(Transfer& transfer, const URLResponse& response) {
  const auto tasks = transfer.tasks();
  const auto found = std::find_if(transfers_.begin(), transfers_.end(),
                                  [&](const auto& each) { return each.get() == &transfer; });
  found->release()->deleteLater();  // it is the caller
  transfers_.erase(found);
  beginTransfers();
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

// The thread must not return into Qt, which the end of the process may have taken down by then.
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
    thread_.wait();  // only Qt's own end of it is left
  }
  return leftBehind_;
}

}  // namespace quorix::qt
