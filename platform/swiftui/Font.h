#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/graphics/FontWeight.h"

namespace quorix::swiftui {

/// The text styles that scaling fonts refer to, largest first.
enum class TextStyle : std::uint8_t {
  largeTitle,
  title,
  title2,
  title3,
  headline,
  body,
  callout,
  subheadline,
  footnote,
  caption,
  caption2,
};

using graphics::FontWeight;

/// A face by name at a size in points. An unknown name selects the system's font.
///
///     auto font = Font::custom("Saans-Regular", Font::FixedSize{14});
class Font {
 public:
  struct FixedSize {
    double points;
  };

  /// The system's font for the body style.
  Font() = default;

  /// Never scales with the user's text size.
  static Font custom(std::string_view name, FixedSize size) {
    return Font(name, size.points, TextStyle::body, false);
  }
  /// Scales with the user's text size as `relativeTo` does; `size` is at the default text size.
  static Font custom(std::string_view name, double size, TextStyle relativeTo = TextStyle::body) {
    return Font(name, size, relativeTo, true);
  }

  /// PostScript or family name; empty for the system's font.
  const std::string& name() const { return name_; }
  /// Points, before scaling.
  double size() const { return size_; }
  bool scales() const { return scales_; }
  TextStyle textStyle() const { return style_; }

  bool operator==(const Font&) const = default;

 private:
  Font(std::string_view name, double size, TextStyle style, bool scales)
      : name_(name), size_(size), style_(style), scales_(scales) {}

  std::string name_;
  double size_ = 17;
  TextStyle style_ = TextStyle::body;
  bool scales_ = true;
};

}  // namespace quorix::swiftui
