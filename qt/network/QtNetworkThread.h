#pragma once

#include <memory>

#include "platform/foundation/NetworkTransport.h"

namespace quorix::qt {

/// Starts a thread for the HTTP session's requests, over Qt's sockets.
///
/// Plain GETs by HTTP/1.1, each on a connection of its own, which is closed after the answer: no
/// cache, cookies or credentials. The application's proxies (`QNetworkProxyFactory`; of HTTP ones
/// those without credentials or with Basic ones) and its default SSL configuration apply.
///
/// An answer with any HTTP status is an answer, 404 and 500 too; only what kept an answer from
/// arriving whole is an error (domain "URLSession", code `QNetworkReply::NetworkError`). The body
/// is absent for a status that has none (204, 304) and empty for any other answer without content.
///
/// Redirects (301, 302, 303, 307, 308) are followed, up to 20, unless they lead from https to http;
/// one without a usable `Location` is an answer like any other.
///
/// Every fetch is bounded, for every status: an answer with a body of more than 256 kB
/// (decompressed) or headers of more than 64 kB ends with `UnknownContentError`, a fetch that takes
/// longer than the time limit with `TimeoutError`, and the connection is closed.
///
/// Between requests the thread sleeps in its event loop. (Qt looks up names on another thread,
/// which ends half a minute later.)
std::unique_ptr<foundation::NetworkThread> makeNetworkThread();

}  // namespace quorix::qt
