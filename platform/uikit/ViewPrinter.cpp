#include "platform/uikit/ViewPrinter.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/render/Wording.h"

namespace quorix::uikit {
namespace {

using render::inQuotes;
using render::points;

std::string describe(const UIColor& color) {
  return color.name().empty() ? render::hex(color.resolve(graphics::Appearance::light))
                              : inQuotes(color.name());
}

/// The class name. For a subview also its index, because several may have the same class.
std::string nameIn(const UIView& holder, const UIView& item) {
  std::string name(item.className());
  if (&item == &holder) return name;
  const auto& views = holder.subviews();
  const auto at = std::ranges::find(views, &item, [](const auto& view) { return view.get(); });
  return name + '[' + std::to_string(at - views.begin()) + ']';
}

std::string end(const UIView& holder, const UIView& item, LayoutAttribute attribute) {
  constexpr std::string_view names[] = {"left", "right",  "leading", "trailing",
                                        "top",  "bottom", "width",   "height"};
  return nameIn(holder, item) + '.' + std::string(names[static_cast<int>(attribute)]);
}

std::string describe(const UIView& holder, const ActiveLayoutConstraint& constraint) {
  constexpr std::string_view relations[] = {" = ", " <= ", " >= "};
  std::string text = end(holder, *constraint.firstItem, constraint.firstAttribute);
  text += relations[static_cast<int>(constraint.relation)];
  const double constant = constraint.constant;
  if (!constraint.secondItem) return text + points(constant);
  text += end(holder, *constraint.secondItem, constraint.secondAttribute);
  if (constant == 0) return text;
  return text + (constant < 0 ? " - " : " + ") + points(std::abs(constant));
}

std::string looks(const UIView& view) {
  std::string text;
  const auto content = view.describe({});
  if (view.accessibilityLabel()) {
    text += ' ' + inQuotes(*view.accessibilityLabel());
  } else if (content) {
    text += ' ' + inQuotes(content->label);
  }
  constexpr std::string_view traits[] = {"", " button", " link", " header"};
  text += traits[static_cast<int>(view.accessibilityTraits())];
  if (view.backgroundColor()) text += " background " + describe(*view.backgroundColor());
  const CALayer& layer = view.layer();
  if (layer.borderWidth() > 0) {
    text += " border " + points(layer.borderWidth());
    if (layer.borderColor()) text += ' ' + describe(*layer.borderColor());
  }
  if (view.isHidden()) text += " hidden";
  if (view.isUserInteractionEnabled() && !view.gestureRecognizers().empty()) text += " taps";
  return text;
}

void print(const UIView& view, std::size_t depth, std::string& to) {
  const auto line = [&](std::size_t indent, const std::string& content) {
    to.append(indent * 2, ' ');
    to += content + '\n';
  };
  const layout::Rect& frame = view.frame();
  std::string head(view.className());
  for (const double length : {frame.left(), frame.top(), frame.size.width, frame.size.height}) {
    head += ' ' + points(length);
  }
  line(depth, head + looks(view));
  for (const ActiveLayoutConstraint& constraint : view.constraints()) {
    line(depth + 2, ".constraint(" + describe(view, constraint) + ')');
  }
  for (const auto& subview : view.subviews()) print(*subview, depth + 1, to);
}

}  // namespace

std::string printViews(const UIView& view) {
  std::string text;
  print(view, 0, text);
  return text;
}

}  // namespace quorix::uikit
