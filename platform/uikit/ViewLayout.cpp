#include "platform/uikit/ViewLayout.h"

#include <algorithm>
#include <functional>

namespace quorix::uikit {
namespace {

using Edge = AxisRule::Edge;
using layout::Axis;
using layout::LayoutDirection;

bool isAlong(Axis axis, LayoutAttribute attribute) {
  const bool vertical = attribute == LayoutAttribute::top || attribute == LayoutAttribute::bottom ||
                        attribute == LayoutAttribute::height;
  return vertical == (axis == Axis::vertical);
}

Edge edgeOf(LayoutAttribute attribute, bool mirrored) {
  // In the order of the attributes.
  constexpr Edge edges[] = {Edge::start, Edge::end, Edge::start,  Edge::end,
                            Edge::start, Edge::end, Edge::length, Edge::length};
  const Edge edge = edges[static_cast<int>(attribute)];
  if (!mirrored) return edge;
  return edge == Edge::start ? Edge::end : Edge::start;
}

LayoutRelation flipped(LayoutRelation relation) {
  if (relation == LayoutRelation::lessThanOrEqual) return LayoutRelation::greaterThanOrEqual;
  if (relation == LayoutRelation::greaterThanOrEqual) return LayoutRelation::lessThanOrEqual;
  return relation;
}

/// The active constraints of `view` and its subviews as rules along one axis.
std::vector<AxisRule> rulesAlong(Axis axis, const UIView& view, LayoutDirection direction) {
  const auto indexOf = [&view](const UIView* item) {
    if (item == &view) return 0;
    const auto& views = view.subviews();
    const auto found = std::ranges::find(views, item, [](const auto& each) { return each.get(); });
    return 1 + static_cast<int>(found - views.begin());
  };
  std::vector<AxisRule> rules;
  const auto add = [&](const ActiveLayoutConstraint& constraint) {
    const auto attribute = constraint.firstAttribute;
    if (!isAlong(axis, attribute)) return;
    const bool alone = !constraint.secondItem;
    const bool reads =
        attribute == LayoutAttribute::leading || attribute == LayoutAttribute::trailing;
    const bool mirrored = reads && direction == LayoutDirection::rightToLeft;
    rules.push_back({indexOf(constraint.firstItem), edgeOf(attribute, mirrored),
                     mirrored ? flipped(constraint.relation) : constraint.relation,
                     alone ? AxisRule::none : indexOf(constraint.secondItem),
                     alone ? Edge::length : edgeOf(constraint.secondAttribute, mirrored),
                     mirrored ? -constraint.constant : constraint.constant});
  };
  for (const ActiveLayoutConstraint& constraint : view.constraints()) add(constraint);
  for (const auto& subview : view.subviews()) {
    for (const ActiveLayoutConstraint& constraint : subview->constraints()) {
      if (!constraint.secondItem) add(constraint);  // its own size
    }
  }
  return rules;
}

std::vector<AxisItem> itemsAlong(Axis axis, const UIView& view) {
  std::vector<AxisItem> items(view.subviews().size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    const UIView& subview = *view.subviews()[i];
    if (!subview.translatesAutoresizingMaskIntoConstraints()) continue;
    const layout::Rect& frame = subview.frame();
    items[i] = axis == Axis::horizontal ? AxisItem{frame.left(), frame.size.width}
                                        : AxisItem{frame.top(), frame.size.height};
  }
  return items;
}

/// The length that the view's own constraint sets. Its content does not count.
std::optional<double> fixedLength(const UIView& view, LayoutAttribute attribute) {
  for (const ActiveLayoutConstraint& constraint : view.constraints()) {
    const bool own = !constraint.secondItem && constraint.firstItem == &view;
    if (own && constraint.firstAttribute == attribute &&
        constraint.relation == LayoutRelation::equal) {
      return constraint.constant;
    }
  }
  return std::nullopt;
}

}  // namespace

layout::Size ViewLayout::sizeThatFits(const UIView& view, layout::ProposedSize proposal) const {
  const Length fixedWidth = fixedLength(view, LayoutAttribute::width);
  const Length fixedHeight = fixedLength(view, LayoutAttribute::height);
  if (const auto content = view.intrinsicContentSize(proposal.width, context_)) {
    return {fixedWidth.value_or(content->width), fixedHeight.value_or(content->height)};
  }
  Length width = fixedWidth ? fixedWidth : proposal.width;
  if (!width) width = naturalWidth(view).value_or(view.frame().size.width);
  Length height = fixedHeight ? fixedHeight : naturalHeight(view, *width);
  if (!height) height = proposal.height.value_or(view.frame().size.height);
  return {*width, *height};
}

void ViewLayout::layOut(UIView& view, const layout::Rect& frame) const {
  view.layOutAt(frame);
  if (view.subviews().empty()) return;
  const auto columns = across(view, frame.size.width);
  const auto& subviews = view.subviews();
  const auto height = [&](std::size_t i) { return naturalHeight(*subviews[i], columns[i].length); };
  const auto rows = placeAlong(itemsAlong(Axis::vertical, view),
                               rulesAlong(Axis::vertical, view, context_.display.direction),
                               std::cref(height), frame.size.height);
  for (std::size_t i = 0; i < subviews.size(); ++i) {
    layOut(*subviews[i], {{columns[i].start, rows[i].start}, {columns[i].length, rows[i].length}});
  }
}

ViewLayout::Length ViewLayout::naturalWidth(const UIView& view) const {
  if (const auto content = view.intrinsicContentSize(std::nullopt, context_)) return content->width;
  const auto width = [&](std::size_t i) { return naturalWidth(*view.subviews()[i]); };
  // The width is the same in both reading directions.
  return fittingExtent(itemsAlong(Axis::horizontal, view),
                       rulesAlong(Axis::horizontal, view, LayoutDirection::leftToRight),
                       std::cref(width));
}

ViewLayout::Length ViewLayout::naturalHeight(const UIView& view, double width) const {
  if (const auto content = view.intrinsicContentSize(width, context_)) return content->height;
  const auto columns = across(view, width);
  const auto height = [&](std::size_t i) {
    return naturalHeight(*view.subviews()[i], columns[i].length);
  };
  return fittingExtent(itemsAlong(Axis::vertical, view),
                       rulesAlong(Axis::vertical, view, context_.display.direction),
                       std::cref(height));
}

std::vector<AxisSpan> ViewLayout::across(const UIView& view, double width) const {
  const auto natural = [&](std::size_t i) { return naturalWidth(*view.subviews()[i]); };
  return placeAlong(itemsAlong(Axis::horizontal, view),
                    rulesAlong(Axis::horizontal, view, context_.display.direction),
                    std::cref(natural), width);
}

}  // namespace quorix::uikit
