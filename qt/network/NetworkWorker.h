#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/foundation/URLSession.h"
#include "qt/network/HTTPExchange.h"

namespace quorix::qt {

/// One GET over the wire, redirects included, whose answer goes to every task that has joined.
///
/// Bounded in size and in time: each answer has the limits of `HTTPResponseReader`, and the whole
/// fails after `kRedirectLimit` redirects or its time limit. Lives on the network thread.
class Transfer final : public QObject {
 public:
  using Ended = std::function<void(Transfer&, foundation::URLResponse)>;
  using Task = std::uint64_t;

  static constexpr int kRedirectLimit = 20;

  /// Calls `ended` once, unless it is destroyed first. `ended` may `deleteLater` the transfer.
  Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended);

  const QUrl& address() const { return address_; }
  std::chrono::milliseconds timeLimit() const { return deadline_.intervalAsDuration(); }

  void join(Task task) { tasks_.push_back(task); }
  const std::vector<Task>& tasks() const { return tasks_; }

  /// Sends the request. The time limit counts from here.
  void begin();
  bool hasBegun() const { return begun_.isValid(); }

 private:
  void send(const QUrl& url);
  void answered(foundation::URLResponse response, const std::string& location);
  void follow(const QUrl& from, const QUrl& target);
  void end(foundation::URLResponse response);

  const QUrl address_;
  Ended ended_;
  QTimer deadline_;
  QElapsedTimer begun_;
  std::vector<Task> tasks_;
  std::unique_ptr<HTTPExchange> exchange_;
  int redirects_ = 0;
};

/// How every request ends that the application object's end overtakes.
foundation::URLResponse cancelled();

/// What the network thread does, for as long as one application object lives.
///
/// Asks the registered protocols for each request, one request after the other. What they leave to
/// the network goes into a `Transfer`, which requests for the same address share while it lasts.
class NetworkWorker final : public QObject {
 public:
  using Completion = foundation::URLTransport::Completion;
  using Task = Transfer::Task;

  struct Request {
    foundation::URL url;  ///< what protocols are asked to answer
    QUrl address;         ///< what is fetched when none of them does
    std::chrono::milliseconds timeLimit;
  };

  /// How many transfers run at a time for one host and port. The time limits of the others, which
  /// wait, do not run meanwhile.
  static constexpr int kTransfersPerHost = 6;

  /// How long `end` waits for a protocol or a completion that blocks.
  static constexpr std::chrono::seconds kPatience{2};

  /// Starts the thread.
  NetworkWorker();

  /// Any thread, until `end`. The completion runs once, on the worker's thread.
  void perform(Request request, Completion completion);

  /// Cancels everything and ends the thread; false when it does not end within `kPatience`. It then
  /// stays blocked for good (even if the protocol returns), the completions have run on another
  /// thread, and the worker must never be destroyed. Any other thread, once.
  bool end();

  bool isCurrentThread() const { return QThread::currentThread() == &thread_; }

 private:
  void begin(Task task, const Request& request);
  void share(Task task, const Request& request);
  void beginTransfers();
  void transferEnded(Transfer& transfer, const foundation::URLResponse& response);
  void complete(Task task, foundation::URLResponse response);
  void cancelAll();
  void stayIfLeftBehind();
  bool leaveBehind();

  QThread thread_;
  std::mutex mutex_;
  Task lastTask_ = 0;
  std::map<Task, Completion> completions_;  // of all tasks that have not completed
  bool ending_ = false;
  bool finishing_ = false;  // nothing of a host's runs on the thread any more
  bool leftBehind_ = false;

  // The thread's own.
  std::vector<std::unique_ptr<Transfer>> transfers_;
};

}  // namespace quorix::qt
