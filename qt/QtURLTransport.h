#pragma once

#include <QString>
#include <QUrl>
#include <chrono>
#include <map>
#include <mutex>
#include <string_view>

#include "platform/foundation/URLRequest.h"
#include "platform/foundation/URLSession.h"

namespace quorix::qt {

/// The HTTP session's requests over Qt Network, on the process's `NetworkThread`.
///
/// Plain GETs with Qt's own headers and no cache. Redirects are followed unless they lead from
/// https to http. An answer with any HTTP status is an answer, 404 and 500 too; only what kept an
/// answer from arriving whole is an error (domain "URLSession", code `QNetworkReply::NetworkError`,
/// Qt's text). Addresses other than http and https are refused, unless a protocol registered with
/// the session answers for them. The body is absent for a status that has none (204, 205, 304) and
/// empty for any other answer without content. An answer in chunks that breaks off may pass for
/// whole: Qt does not always notice.
///
///     URLSession::shared().install(std::make_shared<QtURLTransport>());
class QtURLTransport final : public foundation::URLTransport {
 public:
  /// How long a request may stand still, without a byte arriving, before it ends with an error.
  static constexpr std::chrono::seconds kDefaultTimeout = foundation::URLRequest::defaultTimeout;

  explicit QtURLTransport(std::chrono::milliseconds timeout = kDefaultTimeout);

  /// Any thread. With no application object alive, or when it goes away meanwhile, the request ends
  /// with the error `OperationCanceledError`.
  void start(const foundation::URL& url, Completion completion) override;

  /// Stand-ins: from now on sends the requests for `origin` ("https://api.shop.example") to the
  /// server at `base` ("http://127.0.0.1:8080"), keeping path and query, so that a demo or a test
  /// can serve an origin from loopback. Only the address that was asked for is looked at, not those
  /// that redirects lead to. An unusable `base` makes those requests fail. Any thread.
  void redirectOrigin(std::string_view origin, std::string_view base);

 private:
  QUrl addressOf(const foundation::URL& url) const;

  std::chrono::milliseconds timeout_;
  mutable std::mutex mutex_;
  std::map<QString, QUrl> standIns_;  // by origin
};

}  // namespace quorix::qt
