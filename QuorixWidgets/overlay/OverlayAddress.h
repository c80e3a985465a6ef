#pragma once

#include <optional>
#include <string>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix {

/// The address of the overlay's page: the widget service's personal page if there is a token, even
/// an empty one, else the modules service's general page.
///
///     OverlayAddress{.token = "abc", .userName = "Ann", .locale = "nb"}.url();
///     // https://widget.quorix.example/users/details/?lang=no&name=Ann&token=abc
struct QUORIX_EXPORT OverlayAddress {
  std::optional<std::string> token = std::nullopt;
  std::optional<std::string> userName = std::nullopt;  ///< Name and token are sent only together.
  std::optional<std::string> locale = std::nullopt;  ///< A language code; both Norwegians are "no".
  std::string overlayURL = personalPage();           ///< The page with a token.
  std::string genericOverlayURL = generalPage();     ///< The page without.

  /// The pages' addresses, without a query.
  static std::string personalPage();
  static std::string generalPage();

  /// Absent if the page's address is no URL. Any thread.
  std::optional<foundation::URL> url() const;
};

}  // namespace quorix
