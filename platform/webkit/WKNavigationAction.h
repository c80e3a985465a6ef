#pragma once

#include <optional>

#include "platform/foundation/URLRequest.h"

namespace quorix::webkit {

/// Where a page wants to go.
struct WKNavigationAction {
  std::optional<foundation::URLRequest> request;  ///< absent: to no address
};

}  // namespace quorix::webkit
