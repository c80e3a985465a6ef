#pragma once

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "platform/uikit/UIFont.h"

namespace quorix {

/// The library's faces as fonts of the imperative toolkit. Sizes are in points and do not scale.
/// Never null: a face that the font manager does not know stops the process. Any thread.
///
///     label->setFont(UIFont::Quorix::fixed(QuorixFont::regular(), 13));
struct UIFont : uikit::UIFont {
  UIFont() = delete;

  struct Quorix {
    Quorix() = delete;
    static Ref fixed(const QuorixFont& font, double size) { return require(font.name(), size); }
  };

  struct Tova {
    Tova() = delete;
    static Ref fixed(const TovaFont& font, double size) { return require(font.name(), size); }
  };

 private:
  static Ref require(const std::string& name, double size);
};

}  // namespace quorix
