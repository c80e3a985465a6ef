#pragma once

#include <chrono>

#include "platform/foundation/URL.h"
#include "platform/foundation/URLSession.h"

namespace quorix::qt {

/// The HTTP session's requests over Qt's sockets, on one thread for the process.
///
/// Plain GETs by HTTP/1.1, each on a connection of its own, which is closed after the answer: no
/// cache, cookies or credentials. The application's proxies (`QNetworkProxyFactory`; of HTTP ones
/// those without credentials or with Basic ones) and its default SSL configuration apply.
///
/// An answer with any HTTP status is an answer, 404 and 500 too; only what kept an answer from
/// arriving whole is an error (domain "URLSession", code `QNetworkReply::NetworkError`). The body
/// is absent for a status that has none (204, 304) and empty for any other answer without content.
/// Addresses other than http and https are refused, unless a protocol registered with the session
/// answers for them.
///
/// Redirects (301, 302, 303, 307, 308) are followed, up to 20, unless they lead from https to http;
/// one without a usable `Location` is an answer like any other.
///
/// Requests for an address that is being fetched join that fetch: it costs one connection and one
/// body, and each request completes with a copy of what comes of it. A request that comes after the
/// answer fetches again. Up to six fetches run at a time for one host and port; the others wait.
///
/// Every fetch is bounded, for every status: an answer with a body of more than 256 kB
/// (decompressed) or headers of more than 64 kB ends with `UnknownContentError`, a fetch that takes
/// longer than the time limit with `TimeoutError`, and the connection is closed. The time in which
/// a fetch waits to start does not count.
///
///     URLSession::shared().install(std::make_shared<QtURLTransport>());
class QtURLTransport final : public foundation::URLTransport {
 public:
  /// How long a fetch may take in all, redirects included.
  static constexpr std::chrono::seconds kDefaultTimeLimit = foundation::URLRequest::defaultTimeout;

  explicit QtURLTransport(std::chrono::milliseconds timeLimit = kDefaultTimeLimit);

  /// Any thread. With no application object alive, or if it ends meanwhile, the request ends with
  /// the error `OperationCanceledError`. The completion must not wait for the main thread, which
  /// may be waiting for it.
  void start(const foundation::URL& url, Completion completion) override;

 private:
  const std::chrono::milliseconds timeLimit_;
};

}  // namespace quorix::qt
