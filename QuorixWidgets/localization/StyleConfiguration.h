#pragma once

#include <optional>
#include <string>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/swiftui/Color.h"
#include "platform/swiftui/Font.h"
#include "platform/uikit/UIColor.h"

namespace quorix {

/// The style in a widget's view model. An empty `backgroundColor` stands for the library's own.
template <class Background>
struct StyleConfiguration {
  std::optional<std::string> regularFont;
  std::optional<std::string> semiBoldFont;
  Background backgroundColor;
  bool showBorder = false;
};

using SwiftUIStyleConfiguration = StyleConfiguration<std::optional<swiftui::Color>>;
using UIKitStyleConfiguration = StyleConfiguration<uikit::UIColor::Ref>;

/// A font of a widget's style: a face at a size in points. Main thread.
///
///     const StyleFont regularFont{style.regularFont, QuorixFont::regular, 13};
///     text.font(regularFont());
class StyleFont {
 public:
  /// Uses the face `styleFace`, which scales with the user's text size. If it is absent, uses the
  /// library's `ownFace`, which does not scale and is registered when the font is first read.
  StyleFont(const std::optional<std::string>& styleFace, const QuorixFont& (*ownFace)(),
            double size)
      : ownFace_(ownFace), size_(size) {
    if (styleFace) font_ = swiftui::Font::custom(*styleFace, size);
  }

  const swiftui::Font& operator()() const {
    if (!font_) font_ = swiftui::Font::custom(ownFace_().name(), swiftui::Font::FixedSize{size_});
    return *font_;
  }

 private:
  const QuorixFont& (*ownFace_)();
  double size_;
  mutable std::optional<swiftui::Font> font_;  // caches the library's face
};

}  // namespace quorix
