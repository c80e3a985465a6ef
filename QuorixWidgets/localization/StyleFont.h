#pragma once

#include <optional>
#include <string>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/swiftui/Font.h"

namespace quorix {

/// A font that a widget's style may name, made on first read and kept.
class StyleFont {
 public:
  /// The face `styleFace` at `size` points, which follows the user's text size; where it is absent,
  /// the library's `ownFace` at that size whatever the user's, which registers it.
  const swiftui::Font& get(const std::optional<std::string>& styleFace,
                           const QuorixFont& (*ownFace)(), double size) {
    if (!font_) {
      font_ = styleFace ? swiftui::Font::custom(*styleFace, size)
                        : swiftui::Font::custom(ownFace().name(), swiftui::Font::FixedSize{size});
    }
    return *font_;
  }

 private:
  std::optional<swiftui::Font> font_;
};

}  // namespace quorix
