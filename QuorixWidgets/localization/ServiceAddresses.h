#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/foundation/URL.h"

namespace quorix {

/// The addresses of the vendor's services. The build options QUORIX_MODULES_URL and
/// QUORIX_WIDGET_URL set them: https, without a trailing slash. Any thread.
QUORIX_EXPORT std::string_view modulesServiceBaseURL();
QUORIX_EXPORT std::string_view widgetServiceBaseURL();

/// The address of the overlay's page. With a token, even an empty one, it is the widget service's
/// personal page, otherwise the modules service's general page.
///
///     OverlayAddress{.token = "abc", .userName = "Ann", .locale = "nb"}.url();
///     // https://widget.quorix.example/users/details/?lang=no&name=Ann&token=abc
struct QUORIX_EXPORT OverlayAddress {
  std::optional<std::string> token = std::nullopt;
  std::optional<std::string> userName = std::nullopt;  ///< Name and token are sent only together.
  std::optional<std::string> locale = std::nullopt;  ///< A language code; both Norwegians are "no".
  std::string overlayURL = personalPage();           ///< The page if there is a token.
  std::string genericOverlayURL = generalPage();     ///< The page without a token.

  /// The pages' addresses, without a query.
  static std::string personalPage();
  static std::string generalPage();

  /// Absent if the page's address is not a URL. Any thread.
  std::optional<foundation::URL> url() const;
};

}  // namespace quorix
