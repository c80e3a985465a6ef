#pragma once

#include <string>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "platform/foundation/Export.h"
#include "platform/uikit/UIFont.h"

namespace quorix {

/// The library's faces as fonts of the imperative toolkit. Sizes are in points and do not scale.
/// Never null, because the handle has registered its face. Any thread.
///
///     const uikit::UIFont::Ref small = UIFont::Quorix::fixed(QuorixFont::regular(), 13);
struct UIFont : uikit::UIFont {
  UIFont() = delete;

  /// Fonts of a family's handles: `Quorix` and `Tova`.
  template <class Handle>
  struct Family {
    Family() = delete;
    static Ref fixed(const Handle& font, double size) { return require(font.name(), size); }
  };

  using Quorix = Family<QuorixFont>;
  using Tova = Family<TovaFont>;

 private:
  QUORIX_EXPORT static Ref require(const std::string& name, double size);
};

}  // namespace quorix
