#pragma once

#include <cstdint>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/swiftui/Font.h"

namespace quorix::swiftui {

/// The user's text size, smallest first; `large` is the default.
enum class ContentSizeCategory : std::uint8_t {
  extraSmall,
  small,
  medium,
  large,
  extraLarge,
  extraExtraLarge,
  extraExtraExtraLarge,
  accessibilityMedium,
  accessibilityLarge,
  accessibilityExtraLarge,
  accessibilityExtraExtraLarge,
  accessibilityExtraExtraExtraLarge,
};

/// Its name: "extraLarge".
QUORIX_EXPORT std::string_view nameOf(ContentSizeCategory category);

/// The category whose body text is nearest to `factor` times the usual size: 1.25 is
/// `extraExtraLarge`.
QUORIX_EXPORT ContentSizeCategory contentSizeCategoryFor(double factor);

/// What a size of `style` at the default category is multiplied by at `category`.
QUORIX_EXPORT double scaleFactor(TextStyle style, ContentSizeCategory category);

}  // namespace quorix::swiftui
