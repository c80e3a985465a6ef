#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::foundation {

/// The result of a request: a transport error, or a body (absent if the answer had none) with the
/// HTTP status, which is 0 if the answer did not come over HTTP.
struct URLResponse {
  std::optional<Error> error;
  std::optional<std::string> body;
  int status = 0;
};

/// Performs plain GET requests. `start` returns at once; `completion` runs exactly once, on a
/// thread that is not the main thread, and must not throw. Requests for the same address may share
/// one connection.
class QUORIX_EXPORT URLTransport {
 public:
  using Completion = std::function<void(URLResponse)>;
  virtual ~URLTransport() = default;
  virtual void start(const URL& url, Completion completion) = 0;
};

/// Answers requests in place of the network, on the session's thread. If the answer is absent, the
/// request goes to the network.
///
/// It should answer at once, because later requests wait for it. The end of the application waits
/// two seconds for a protocol that blocks, then ends all requests with an error and leaves the
/// thread behind: a later answer is ignored, and what the protocol uses must still exist then. If a
/// protocol throws, the answer is an error of domain "URLSession", code -2.
using URLProtocol = std::function<std::optional<URLResponse>(const URL&)>;

/// The process-wide HTTP session. The engine installs the transport; a host, a demo or a test may
/// register protocols that answer for origins of their choice.
class QUORIX_EXPORT URLSession {
 public:
  static URLSession& shared();

  /// Starts a GET of `url`. With no transport installed, or with the network off, it completes with
  /// an error of domain "URLSession", code -1 (without a transport on a thread of its own). Any
  /// thread.
  void get(const URL& url, URLTransport::Completion completion);

  /// Installs the transport that performs the requests from now on. Main thread.
  void install(std::shared_ptr<URLTransport> transport);

  /// Consults `protocol` before the network, latest registration first; it stays registered as long
  /// as the returned token lives. Any thread; the protocol runs on the session's thread.
  [[nodiscard]] std::shared_ptr<void> registerProtocol(URLProtocol protocol);

  /// Turns the network off for the process, or on again. Off, a request that no protocol and no
  /// prefetched answer serves ends at once with an error; one that is under way is not stopped.
  /// The pages of a web view are loaded by the web engine and are not affected. Any thread.
  ///
  ///     URLSession::shared().setNetworkEnabled(false);  // until the shopper consents
  void setNetworkEnabled(bool enabled);

  /// Makes a value of an answer; null if the answer is of no use.
  using Reader = std::function<std::shared_ptr<const void>(const URLResponse&)>;

  /// Fetches `url` and keeps the answer in memory for `lifetime`, with the value that `read` makes
  /// of it on the session's thread. Requests that no protocol answers then get the kept answer.
  /// Keeps no answer of a protocol and none of which `read` makes null; at most `mostPrefetched`
  /// addresses, the latest. Does nothing while an answer is kept or on its way. Without a transport
  /// it waits for the first one. Any thread.
  void prefetch(const URL& url, std::chrono::seconds lifetime, Reader read);
  static constexpr std::size_t mostPrefetched = 8;

  /// The value that the reader made of the answer kept for `address()`, which is called only if
  /// any answer is kept. Null without one, and while a protocol is registered, because protocols
  /// come first. Any thread.
  std::shared_ptr<const void> prefetched(const std::function<std::string()>& address);

  /// The answer for `url` that needs no network: a protocol's, a prefetched one, or with the
  /// network off an error. For transports, on their own thread, once for each request.
  std::optional<URLResponse> answerInProcess(const URL& url);

 private:
  friend class Runtime;
  URLSession();
  ~URLSession();
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::foundation
