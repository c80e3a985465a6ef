#pragma once

#include <chrono>

#include "platform/foundation/URL.h"

namespace quorix::foundation {

/// What to load, and how patiently.
///
///     URLRequest request{*URL::parse("https://shop.example/page")};
struct URLRequest {
  /// What may answer in place of the server; the values are the platform's.
  enum class CachePolicy {
    useProtocolCachePolicy = 0,  ///< What HTTP allows.
  };

  using Seconds = std::chrono::duration<double>;
  /// Also how long a request of the HTTP session may take in all.
  static constexpr std::chrono::seconds defaultTimeout{60};

  URL url;
  CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
  Seconds timeoutInterval = defaultTimeout;  ///< Without a byte arriving.
};

}  // namespace quorix::foundation
