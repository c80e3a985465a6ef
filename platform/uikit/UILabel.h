#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/uikit/NSAttributedString.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

enum class NSTextAlignment : std::uint8_t { natural };

/// A text. Not touched unless it is told otherwise. Its lines begin where reading begins, and stand
/// in the middle of a frame that is higher than they need.
class UILabel final : public UIView {
 public:
  explicit UILabel(layout::Rect frame = {});

  std::string text() const { return text_.string(); }
  /// In the label's font and colour.
  void setText(std::string text);
  const NSAttributedString& attributedText() const { return text_; }
  /// Runs without a font or a colour of their own take the label's.
  void setAttributedText(const NSAttributedString& text);

  /// Null is the system's font at 17 points. Setting it sets it over the whole text.
  const UIFont::Ref& font() const { return font_; }
  void setFont(UIFont::Ref font);
  /// Null is black, or white on dark. Setting it sets it over the whole text.
  const UIColor::Ref& textColor() const { return textColor_; }
  void setTextColor(UIColor::Ref color);
  /// 1 (the default) never breaks the text; any other number breaks it to the width, into as many
  /// lines as it takes.
  int numberOfLines() const { return numberOfLines_; }
  void setNumberOfLines(int lines);
  NSTextAlignment textAlignment() const { return NSTextAlignment::natural; }

  std::string_view className() const override { return "UILabel"; }
  std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                   const LayoutContext& context) const override;
  void draw(const layout::Rect& frame, const LayoutContext& context,
            std::vector<render::Item>& items) const override;
  std::optional<render::AccessibilityElement> describe(std::string_view language) const override;

 private:
  struct Measured {
    double width;  ///< offered
    double scale;
    layout::Size size;
  };

  text::AttributedText resolved(const render::Display& display) const;
  layout::Size measured(double width, const LayoutContext& context) const;
  void contentChanged();

  NSMutableAttributedString text_;
  UIFont::Ref font_;
  UIColor::Ref textColor_;
  int numberOfLines_ = 1;
  mutable std::vector<Measured> measured_;  // of the text as it is
};

}  // namespace quorix::uikit
