#include "platform/uikit/UILabel.h"

#include <algorithm>
#include <utility>

#include "platform/layout/Geometry.h"
#include "platform/text/TextBound.h"

namespace quorix::uikit {
namespace {

/// Sizes that are cached before the cache is cleared. One layout measures fewer.
constexpr std::size_t manyWidths = 4;

graphics::RGBA defaultColor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{255, 255, 255, 255}
                                                  : graphics::RGBA{0, 0, 0, 255};
}

text::ResolvedFont resolvedFont(const UIFont::Ref& font) {
  return font ? text::ResolvedFont{font->name(), font->pointSize()} : text::ResolvedFont{};
}

}  // namespace

UILabel::UILabel(layout::Rect frame) : UIView(frame) { startUntouched(); }

void UILabel::setText(std::string text) {
  text_ = NSMutableAttributedString(std::move(text));
  contentChanged();
}

void UILabel::setAttributedText(const NSAttributedString& text) {
  text_ = NSMutableAttributedString(text);
  contentChanged();
}

void UILabel::setFont(UIFont::Ref font) {
  font_ = std::move(font);
  text_.setFont(font_);
  contentChanged();
}

void UILabel::setTextColor(UIColor::Ref color) {
  textColor_ = std::move(color);
  text_.setForegroundColor(textColor_);
  contentChanged();
}

void UILabel::setNumberOfLines(int lines) {
  numberOfLines_ = lines;
  contentChanged();
}

void UILabel::contentChanged() {
  measured_.clear();
  setNeedsLayout();
}

text::AttributedText UILabel::resolved(const render::Display& display) const {
  text::AttributedText text;
  text.direction = display.direction;
  for (const NSAttributedString::Run& run : text_.runs()) {
    const UIColor::Ref& color =
        run.attributes.foregroundColor ? run.attributes.foregroundColor : textColor_;
    const bool underline = run.attributes.underlineStyle == NSUnderlineStyle::thick;
    text.runs.push_back(
        {run.text, resolvedFont(run.attributes.font ? run.attributes.font : font_),
         color ? color->resolve(display.appearance) : defaultColor(display.appearance), underline,
         false, underline});
  }
  text::bound(text);
  return text;
}

layout::Size UILabel::measured(double width, const LayoutContext& context) const {
  const double scale = context.display.scale;
  for (const Measured& known : measured_) {
    if (known.width == width && known.scale == scale) return known.size;
    // A text that fits in one line has the same size in any larger width.
    const bool fits = known.width == layout::infinity && known.size.width <= width;
    if (fits && known.scale == scale) return known.size;
  }
  const auto metrics = context.engine.measure(resolved(context.display), width);
  const layout::Size size = layout::PixelGrid(scale).ceil(metrics.size);
  if (measured_.size() == manyWidths) measured_.clear();
  measured_.push_back({width, scale, size});
  return size;
}

std::optional<layout::Size> UILabel::intrinsicContentSize(std::optional<double> width,
                                                          const LayoutContext& context) const {
  if (text_.runs().empty()) return layout::Size{};
  const bool breaks = numberOfLines_ != 1 && width.has_value();
  return measured(breaks ? *width : layout::infinity, context);
}

void UILabel::draw(const layout::Rect& frame, const LayoutContext& context,
                   std::vector<render::Item>& items) const {
  UIView::draw(frame, context, items);
  if (text_.runs().empty()) return;
  const layout::Size size = *intrinsicContentSize(frame.size.width, context);
  const bool rightToLeft = context.display.direction == layout::LayoutDirection::rightToLeft;
  const double width = std::max(frame.size.width, size.width);
  const double left = rightToLeft ? frame.right() - width : frame.left();
  const double top = frame.top() + (frame.size.height - size.height) / 2;
  items.push_back(render::TextItem{{{left, top}, {width, size.height}}, resolved(context.display)});
  measured_ =
      std::vector<Measured>();  // the layout is over, and most labels are at rest from now on
}

std::optional<render::AccessibilityElement> UILabel::describe(std::string_view) const {
  if (text_.runs().empty()) return std::nullopt;
  render::AccessibilityElement element;
  element.label = text();
  return element;
}

}  // namespace quorix::uikit
