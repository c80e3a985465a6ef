#pragma once

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "platform/swiftui/Font.h"

namespace quorix {

/// The library's faces as fonts of the declarative toolkit. Sizes are in points. The functions do
/// not fail. Any thread.
///
///     auto fee = Font::Quorix::fixed(QuorixFont::regular(), 14);
struct Font : swiftui::Font {
  Font() = delete;

  /// Fonts of a family's handles: `Quorix` and `Tova`.
  template <class Handle>
  struct Family {
    Family() = delete;
    /// `font` at `size`. Does not scale with the user's text size.
    static swiftui::Font fixed(const Handle& font, double size) {
      return custom(font.name(), FixedSize{size});
    }
    /// `font` at `size` points for the default text size. Scales with the user's text size like
    /// `style`.
    static swiftui::Font relative(const Handle& font, double size, swiftui::TextStyle style) {
      return custom(font.name(), size, style);
    }
  };

  using Quorix = Family<QuorixFont>;
  using Tova = Family<TovaFont>;
};

}  // namespace quorix
