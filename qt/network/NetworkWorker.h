#pragma once

#include <QObject>
#include <QThread>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>

#include "platform/foundation/TransferRules.h"
#include "platform/foundation/URLSession.h"
#include "qt/network/Transfer.h"

namespace quorix::qt {

/// The response to a request that the application object's end interrupts.
foundation::URLResponse cancelled();

/// Performs requests on a thread of its own, for as long as one application object lives.
///
/// Asks the registered protocols for each request, one request after the other. What they do not
/// answer is fetched by a `Transfer`, which requests for the same address share while it lasts.
class NetworkWorker final : public QObject {
 public:
  using Completion = foundation::URLTransport::Completion;
  using TransferQueue = foundation::TransferQueue;
  using Task = TransferQueue::Task;

  /// How long `end` waits for a protocol or a completion that blocks.
  static constexpr std::chrono::seconds kPatience{2};

  /// Starts the thread.
  NetworkWorker();

  /// Any thread, until `end`. The completion runs once, on the worker's thread.
  void perform(const foundation::URL& url, std::chrono::milliseconds timeLimit,
               Completion completion);

  /// Cancels everything and ends the thread; false if it does not end within `kPatience`. Then it
  /// stays blocked for good (even if the protocol returns), the completions run on another thread,
  /// and the worker must never be destroyed. Any other thread, once.
  bool end();

  bool isCurrentThread() const { return QThread::currentThread() == &thread_; }

 private:
  void begin(Task task, const foundation::URL& url, std::chrono::milliseconds timeLimit);
  void startTransfers();
  void transferEnded(const TransferQueue::Transfer& ended, const foundation::URLResponse& response);
  void complete(Task task, foundation::URLResponse response);
  void cancelAll();
  void stayIfLeftBehind();
  bool leaveBehind();

  QThread thread_;
  std::mutex mutex_;
  Task lastTask_ = 0;
  std::map<Task, Completion> completions_;  // of all tasks that have not completed
  bool ending_ = false;
  bool finishing_ = false;  // no code of the host runs on the thread any more
  bool leftBehind_ = false;

  // Used on the thread only.
  TransferQueue queue_;
  std::map<TransferQueue::Transfer, std::unique_ptr<Transfer>> transfers_;  // running
};

}  // namespace quorix::qt
