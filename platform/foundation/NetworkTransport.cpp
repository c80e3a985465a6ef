#include "platform/foundation/NetworkTransport.h"

#include <algorithm>
#include <cstdint>
#include <future>
#include <list>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/foundation/HTTPConversation.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLError.h"

namespace quorix::foundation {
namespace {

using Clock = std::chrono::steady_clock;
using Task = std::uint64_t;
using Completions = std::map<Task, URLTransport::Completion>;

/// How long `close` waits for a protocol or a completion that blocks.
constexpr std::chrono::seconds patience{2};

URLResponse canceled() { return failure(URLError::canceled, "the application has ended"); }

/// Runs the completions on another thread and waits for them until `deadline`.
void cancel(Completions completions, Clock::time_point deadline) {
  const auto rest = std::make_shared<Completions>(std::move(completions));
  const auto done = std::make_shared<std::promise<void>>();
  asyncOnNewThread([rest, done] {
    for (auto& [task, completion] : *rest) completion(canceled());
    rest->clear();
    done->set_value();
  });
  done->get_future().wait_until(deadline);
}

}  // namespace

/// The requests from an `open` to the next `close`, and their thread.
class NetworkTransport::Worker {
 public:
  Worker(std::unique_ptr<NetworkThread> thread, std::chrono::milliseconds timeLimit)
      : timeLimit_(timeLimit), thread_(std::move(thread)) {}

  /// Any thread, until `end`. The completion runs once.
  void perform(const URL& url, Completion completion);

  /// Cancels everything and ends the thread. False if the thread still uses the worker, which must
  /// never be destroyed then. Any thread, once.
  bool end();

 private:
  struct Fetch {
    URL url;
    std::vector<Task> tasks;  ///< the requests that it serves, the oldest first
    std::shared_ptr<void> running = {};
  };

  void begin(Task task, const URL& url);
  void startFetches();
  void fetchEnded(std::list<Fetch>::iterator fetch, const URLResponse& response);
  void complete(Task task, URLResponse response);
  void hostReturned();

  const std::chrono::milliseconds timeLimit_;
  const std::unique_ptr<NetworkThread> thread_;
  std::mutex mutex_;
  Task lastTask_ = 0;
  Completions completions_;  // of all tasks that have not completed
  bool leftBehind_ = false;

  std::list<Fetch> fetches_;  // the oldest first; used on the thread only
};

void NetworkTransport::Worker::perform(const URL& url, Completion completion) {
  const std::scoped_lock lock(mutex_);
  const Task task = ++lastTask_;
  completions_.emplace(task, std::move(completion));
  thread_->post([this, task, url] { begin(task, url); });
}

void NetworkTransport::Worker::begin(Task task, const URL& url) {
  {
    const std::scoped_lock lock(mutex_);
    if (!completions_.contains(task)) return;  // canceled
  }
  auto answer = URLSession::shared().answerInProcess(url);
  hostReturned();
  if (!answer && !isHTTP(url.scheme())) {
    answer = failure(URLError::unsupportedScheme, "the address is neither http nor https");
  }
  if (answer) return complete(task, *std::move(answer));
  const auto same = std::ranges::find(fetches_, url, &Fetch::url);
  if (same != fetches_.end()) return same->tasks.push_back(task);
  fetches_.push_back({url, {task}});
  startFetches();
}

/// Starts the oldest fetches of each server.
void NetworkTransport::Worker::startFetches() {
  std::map<std::string, int> ofServer;
  for (auto fetch = fetches_.begin(); fetch != fetches_.end(); ++fetch) {
    if (++ofServer[fetch->url.origin()] > mostPerServer || fetch->running) continue;
    fetch->running =
        thread_->fetch(fetch->url, timeLimit_,
                       [this, fetch](const URLResponse& response) { fetchEnded(fetch, response); });
  }
}

void NetworkTransport::Worker::fetchEnded(std::list<Fetch>::iterator fetch,
                                          const URLResponse& response) {
  const auto tasks = std::move(fetch->tasks);
  fetches_.erase(fetch);
  startFetches();
  for (const Task task : tasks) complete(task, response);
}

void NetworkTransport::Worker::complete(Task task, URLResponse response) {
  Completions::node_type found;
  {
    const std::scoped_lock lock(mutex_);
    found = completions_.extract(task);
    if (found.empty()) return;  // canceled
  }
  found.mapped()(std::move(response));
  found = {};
  hostReturned();
}

void NetworkTransport::Worker::hostReturned() {
  {
    const std::scoped_lock lock(mutex_);
    if (!leftBehind_) return;
  }
  // The thread must not return into the engine, which may be gone: the process may be ending.
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

bool NetworkTransport::Worker::end() {
  Completions rest;
  {
    const std::scoped_lock lock(mutex_);
    rest = std::exchange(completions_, {});
  }
  thread_->post([this] {
    fetches_.clear();
    thread_->quit();
  });
  const auto deadline = Clock::now() + patience;
  if (!rest.empty()) cancel(std::move(rest), deadline);
  if (thread_->wait(deadline)) return true;
  const std::scoped_lock lock(mutex_);
  leftBehind_ = true;
  return false;
}

NetworkTransport::NetworkTransport(MakeThread makeThread, std::chrono::milliseconds timeLimit)
    : makeThread_(std::move(makeThread)), timeLimit_(timeLimit) {}

NetworkTransport::~NetworkTransport() { close(); }

void NetworkTransport::start(const URL& url, Completion completion) {
  {
    const std::scoped_lock lock(mutex_);
    if (open_) {
      if (!worker_) worker_ = std::make_unique<Worker>(makeThread_(), timeLimit_);
      return worker_->perform(url, std::move(completion));
    }
  }
  asyncOnNewThread([completion = std::move(completion)] { completion(canceled()); });
}

void NetworkTransport::open() {
  const std::scoped_lock lock(mutex_);
  open_ = true;
}

void NetworkTransport::close() {
  std::unique_ptr<Worker> worker;
  {
    const std::scoped_lock lock(mutex_);
    open_ = false;
    worker = std::move(worker_);
  }
  if (worker && !worker->end()) worker.release();  // its thread uses it
}

}  // namespace quorix::foundation
