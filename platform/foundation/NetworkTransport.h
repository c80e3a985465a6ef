#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <mutex>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"
#include "platform/foundation/URLSession.h"

namespace quorix::foundation {

/// An engine's thread for the network, with an event loop.
class QUORIX_EXPORT NetworkThread {
 public:
  virtual ~NetworkThread() = default;

  /// Runs `work` on the thread, on a later turn and in order. Any thread.
  virtual void post(std::function<void()> work) = 0;

  /// Starts a GET of an http or https address, redirects included. Returns the fetch; destroying it
  /// cancels it. `ended` is called once, on a later turn, but not after the fetch was destroyed.
  /// `ended` may destroy it. On the thread.
  virtual std::shared_ptr<void> fetch(const URL& url, std::chrono::milliseconds timeLimit,
                                      URLTransport::Completion ended) = 0;

  /// Ends the event loop. On the thread.
  virtual void quit() = 0;

  /// Waits until the thread has ended. False if it has not by `deadline`, and at once on the thread
  /// itself. Any thread.
  virtual bool wait(std::chrono::steady_clock::time_point deadline) = 0;
};

/// Performs the HTTP session's requests on one thread of an engine's. The thread starts with the
/// first request.
///
/// Asks the registered protocols for each request, one request after the other. What they do not
/// answer is fetched, from http and https addresses only. Requests for an address that is being
/// fetched join that fetch: it costs one connection and one body, and each request completes with a
/// copy of the response. A request that comes after the response fetches again. Up to
/// `mostPerServer` fetches run at a time for one host and port; the others wait, which does not
/// count as part of their time limit.
class QUORIX_EXPORT NetworkTransport final : public URLTransport {
 public:
  using MakeThread = std::function<std::unique_ptr<NetworkThread>()>;

  static constexpr int mostPerServer = 6;

  /// `timeLimit` is for a fetch in all, redirects included.
  explicit NetworkTransport(MakeThread makeThread,
                            std::chrono::milliseconds timeLimit = URLRequest::defaultTimeout);
  ~NetworkTransport() override;

  /// Any thread. Unless the transport is open, the request ends with the error `canceled`. The
  /// completion must not wait for the thread that calls `close`, which may be waiting for it.
  void start(const URL& url, Completion completion) override;

  void open();

  /// Ends the requests in flight with the error `canceled`, on another thread, then ends the
  /// transport's thread. If that is blocked for two seconds (by a protocol, a completion or the
  /// search for a proxy), it is abandoned: it sleeps from when the blocking call returns. If a
  /// completion calls this on the transport's thread, the thread is abandoned after the other
  /// requests have ended.
  void close();

 private:
  class QUORIX_HIDDEN Worker;

  const MakeThread makeThread_;
  const std::chrono::milliseconds timeLimit_;
  std::mutex mutex_;
  bool open_ = false;
  std::unique_ptr<Worker> worker_;
};

}  // namespace quorix::foundation
