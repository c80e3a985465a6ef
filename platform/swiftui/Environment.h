#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/foundation/Export.h"
#include "platform/graphics/RGBA.h"
#include "platform/layout/Geometry.h"
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
/// `extraExtraLarge`. A factor that is no size counts as 1.
QUORIX_EXPORT ContentSizeCategory contentSizeCategoryFor(double factor);

/// The factor from a size of `style` at the default category to its size at `category`.
QUORIX_EXPORT double scaleFactor(TextStyle style, ContentSizeCategory category);

/// The settings of a surface for its views: the user's and the screen's.
struct Environment {
  graphics::Appearance appearance = graphics::Appearance::light;
  layout::LayoutDirection direction = layout::LayoutDirection::leftToRight;
  ContentSizeCategory textSize = ContentSizeCategory::large;
  double scale = 1;      ///< device pixels for each point
  std::string language;  ///< code of the user's language; for upper case and the host's texts
  bool operator==(const Environment&) const = default;
};

}  // namespace quorix::swiftui
