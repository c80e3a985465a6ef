#pragma once

#include <string>
#include <vector>

#include "platform/uikit/NSAttributedString.h"
#include "platform/uikit/UIView.h"

namespace quorix::uikit {

/// A text. Takes no touches by default. Its lines are aligned to the leading edge, and centered in
/// a frame that is higher than the text.
class UILabel final : public UIView {
 public:
  explicit UILabel(layout::Rect frame = {});

  std::string text() const { return text_.string(); }
  /// In the label's font and color.
  void setText(std::string text);
  /// Runs without a font or a color get the label's.
  void setAttributedText(const NSAttributedString& text);

  /// Null selects the system's font at 17 points. Setting a font changes every run.
  void setFont(UIFont::Ref font);
  /// Null selects black, or white in dark mode. Setting a color changes every run.
  void setTextColor(UIColor::Ref color);
  /// 1 (the default) never breaks the text. Any other number breaks it to the width, without a
  /// limit of lines.
  void setNumberOfLines(int lines);

  std::string_view className() const override { return "UILabel"; }
  std::optional<layout::Size> intrinsicContentSize(std::optional<double> width,
                                                   const LayoutContext& context) const override;
  void draw(const layout::Rect& frame, const LayoutContext& context,
            std::vector<render::Item>& items) const override;
  std::optional<render::AccessibilityElement> describe(std::string_view language) const override;

 private:
  struct Measured {
    double width;  ///< the offered width
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
  mutable std::vector<Measured> measured_;  // of one layout
};

}  // namespace quorix::uikit
