#pragma once

#include <optional>
#include <string>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix {

/// Whom the overlay's page is for, and so where it is: the widget service's personal page for
/// whoever has a token, an empty one included, else the modules service's general page.
///
///     OverlayAddress{.token = "abc", .userName = "Ann", .locale = "nb"}.url();
///     // https://widget.quorix.example/users/details/?lang=no&name=Ann&token=abc
struct QUORIX_EXPORT OverlayAddress {
  std::optional<std::string> token = std::nullopt;
  std::optional<std::string> userName =
      std::nullopt;  ///< Sent with a token only, as the token with it.
  std::optional<std::string> locale = std::nullopt;  ///< A language code; both Norwegians are "no".

  /// Nothing when the services' addresses make none. Any thread.
  std::optional<foundation::URL> url() const;
};

}  // namespace quorix
