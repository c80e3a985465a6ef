#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/foundation/URLSession.h"

namespace quorix::foundation {

/// Why a request of the session ended without an answer. The numbers are the codes of its errors
/// and are public; those above 0 are the ones of `QNetworkReply::NetworkError`.
enum class URLError : std::int64_t {
  protocolThrew = -2,
  noNetwork = -1,
  connectionRefused = 1,
  connectionClosed = 2,
  hostNotFound = 3,
  timedOut = 4,
  canceled = 5,
  handshakeFailed = 6,
  tooManyRedirects = 10,
  insecureRedirect = 11,
  unknown = 99,
  proxyConnectionRefused = 101,
  proxyConnectionClosed = 102,
  proxyNotFound = 103,
  proxyTimedOut = 104,
  proxyAuthenticationRequired = 105,
  unknownProxyError = 199,
  badContent = 299,  ///< too large, or compressed in an unknown way
  unsupportedScheme = 301,
  malformedAnswer = 399,
};

/// A response that is a failure. `description` is for developers.
inline URLResponse failure(URLError error, std::string description) {
  return {Error{"URLSession", static_cast<std::int64_t>(error), std::move(description)}, {}, 0};
}

}  // namespace quorix::foundation
