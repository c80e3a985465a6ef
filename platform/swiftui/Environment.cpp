#include "platform/swiftui/Environment.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace quorix::swiftui {
namespace {

constexpr std::array<std::string_view, 12> names = {
    "extraSmall",
    "small",
    "medium",
    "large",
    "extraLarge",
    "extraExtraLarge",
    "extraExtraExtraLarge",
    "accessibilityMedium",
    "accessibilityLarge",
    "accessibilityExtraLarge",
    "accessibilityExtraExtraLarge",
    "accessibilityExtraExtraExtraLarge",
};

// The published point sizes of each text style, one column for each category.
constexpr double points[11][12] = {
    {31, 32, 33, 34, 36, 38, 40, 44, 48, 52, 56, 60},  // largeTitle
    {25, 26, 27, 28, 30, 32, 34, 38, 43, 48, 53, 58},  // title
    {19, 20, 21, 22, 24, 26, 28, 34, 39, 44, 50, 56},  // title2
    {17, 18, 19, 20, 22, 24, 26, 31, 37, 43, 49, 55},  // title3
    {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53},  // headline
    {14, 15, 16, 17, 19, 21, 23, 28, 33, 40, 47, 53},  // body
    {13, 14, 15, 16, 18, 20, 22, 26, 32, 38, 44, 51},  // callout
    {12, 13, 14, 15, 17, 19, 21, 25, 30, 36, 42, 49},  // subheadline
    {12, 12, 12, 13, 15, 17, 19, 23, 27, 33, 38, 44},  // footnote
    {11, 11, 11, 12, 14, 16, 18, 22, 26, 32, 37, 43},  // caption
    {11, 11, 11, 11, 13, 15, 17, 20, 24, 29, 34, 40},  // caption2
};

}  // namespace

std::string_view nameOf(ContentSizeCategory category) {
  return names[static_cast<std::size_t>(category)];
}

ContentSizeCategory contentSizeCategoryFor(double factor) {
  if (!std::isfinite(factor) || factor <= 0) return ContentSizeCategory::large;
  const auto& body = points[static_cast<std::size_t>(TextStyle::body)];
  const double wanted = factor * body[static_cast<std::size_t>(ContentSizeCategory::large)];
  const auto* nearest =
      std::ranges::min_element(body, {}, [&](double size) { return std::abs(size - wanted); });
  return static_cast<ContentSizeCategory>(nearest - body);
}

double scaleFactor(TextStyle style, ContentSizeCategory category) {
  const auto& row = points[static_cast<std::size_t>(style)];
  return row[static_cast<std::size_t>(category)] /
         row[static_cast<std::size_t>(ContentSizeCategory::large)];
}

}  // namespace quorix::swiftui
