#pragma once

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "platform/swiftui/Font.h"

namespace quorix {

/// The library's faces as fonts of the declarative toolkit. Sizes are in points. Nothing here
/// fails. Any thread.
///
///     auto fee = Font::Quorix::fixed(QuorixFont::regular(), 14);
struct Font : swiftui::Font {
  Font() = delete;

  struct Quorix {
    Quorix() = delete;
    /// `font` at `size`, whatever the user's text size.
    static swiftui::Font fixed(const QuorixFont& font, double size) {
      return custom(font.name(), FixedSize{size});
    }
    /// `font` at `size` for the default text size, scaling with the user's as `style` does.
    static swiftui::Font relative(const QuorixFont& font, double size, swiftui::TextStyle style) {
      return custom(font.name(), size, style);
    }
  };

  struct Tova {
    Tova() = delete;
    /// As `Quorix::fixed`.
    static swiftui::Font fixed(const TovaFont& font, double size) {
      return custom(font.name(), FixedSize{size});
    }
    /// As `Quorix::relative`.
    static swiftui::Font relative(const TovaFont& font, double size, swiftui::TextStyle style) {
      return custom(font.name(), size, style);
    }
  };
};

}  // namespace quorix
