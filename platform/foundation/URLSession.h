#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/foundation/Error.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix::foundation {

/// The result of a request: a transport error, or a body (absent if the answer had none) and the
/// HTTP status, which is 0 if the answer did not arrive over HTTP.
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

/// Answers requests in place of the network, on the session's thread. Without an answer, the
/// request goes to the network.
///
/// Return quickly, because later requests wait. At the end of the application all requests end
/// with an error, on another thread. If a protocol blocks then, the session waits two seconds and
/// abandons its thread. A later answer is ignored, but what the protocol uses must still exist. If
/// a protocol throws, the request ends with an error of domain "URLSession", code -2.
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

  /// Consults `protocol` before the network; the latest registration is asked first. It stays
  /// registered as long as the returned token lives. Any thread; the protocol runs on the session's
  /// thread.
  [[nodiscard]] std::shared_ptr<void> registerProtocol(URLProtocol protocol);

  /// Turns the network off or on for the process. While it is off, a request without an answer from
  /// a protocol or a prefetch ends at once with an error. Requests that have started continue.
  /// Pages of a web view are loaded by the web engine and are not affected. Any thread.
  ///
  ///     URLSession::shared().setNetworkEnabled(false);  // until the shopper consents
  void setNetworkEnabled(bool enabled);

  /// Converts an answer, for instance by parsing it. Null if the answer is unusable.
  using Reader = std::function<std::shared_ptr<const void>(const URLResponse&)>;

  /// Fetches `url` and keeps the answer and the result of `read` in memory for `lifetime`. During
  /// that time the answer serves the requests that no protocol answers. Keeps only usable answers
  /// of the network (`read` runs on a thread of the session), of at most `mostPrefetched`
  /// addresses. Has no effect while an answer is kept or requested. Without a transport it waits
  /// until one is installed. Any thread.
  void prefetch(const URL& url, std::chrono::seconds lifetime, Reader read);
  static constexpr std::size_t mostPrefetched = 8;

  /// The result of `read` for the answer that is kept for `address`. Calls `address` only if an
  /// answer is kept. Null without an answer, and while a protocol is registered, because protocols
  /// are asked first. Any thread.
  std::shared_ptr<const void> prefetched(const std::function<std::string()>& address);

  /// The answer for `url` that needs no network: from a protocol, from a prefetch, or an error if
  /// the network is off. For transports, on their own thread, once for each request.
  std::optional<URLResponse> answerInProcess(const URL& url);

 private:
  friend class Runtime;
  URLSession();
  ~URLSession();
  struct QUORIX_HIDDEN State;
  std::unique_ptr<State> state_;
};

}  // namespace quorix::foundation
