#include "platform/uikit/ViewLayout.h"

#include <algorithm>
#include <utility>

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
  switch (attribute) {
    case LayoutAttribute::left:
    case LayoutAttribute::top:
      return Edge::start;
    case LayoutAttribute::right:
    case LayoutAttribute::bottom:
      return Edge::end;
    case LayoutAttribute::leading:
      return mirrored ? Edge::end : Edge::start;
    case LayoutAttribute::trailing:
      return mirrored ? Edge::start : Edge::end;
    case LayoutAttribute::width:
    case LayoutAttribute::height:
      break;
  }
  return Edge::length;
}

LayoutRelation flipped(LayoutRelation relation) {
  if (relation == LayoutRelation::lessThanOrEqual) return LayoutRelation::greaterThanOrEqual;
  if (relation == LayoutRelation::greaterThanOrEqual) return LayoutRelation::lessThanOrEqual;
  return relation;
}

/// Collects the active constraints of `view` and its subviews as rules along one axis.
class RuleReader {
 public:
  RuleReader(const UIView& view, Axis axis, LayoutDirection direction)
      : view_(view), axis_(axis), direction_(direction) {
    for (const ActiveLayoutConstraint& constraint : view.constraints()) add(constraint);
    for (const auto& subview : view.subviews()) {
      for (const ActiveLayoutConstraint& constraint : subview->constraints()) {
        if (!constraint.secondItem) add(constraint);  // its own size
      }
    }
  }
  std::vector<AxisRule> rules;

 private:
  void add(const ActiveLayoutConstraint& constraint) {
    const auto attribute = constraint.firstAttribute;
    if (!isAlong(axis_, attribute)) return;
    const bool alone = !constraint.secondItem;
    const bool reads =
        attribute == LayoutAttribute::leading || attribute == LayoutAttribute::trailing;
    const bool mirrored = reads && direction_ == LayoutDirection::rightToLeft;
    rules.push_back({indexOf(constraint.firstItem), edgeOf(attribute, mirrored),
                     mirrored ? flipped(constraint.relation) : constraint.relation,
                     alone ? AxisRule::none : indexOf(constraint.secondItem),
                     alone ? Edge::length : edgeOf(constraint.secondAttribute, mirrored),
                     mirrored ? -constraint.constant : constraint.constant});
  }

  int indexOf(const UIView* item) const {
    if (item == &view_) return 0;
    const auto& views = view_.subviews();
    const auto found = std::find_if(views.begin(), views.end(),
                                    [item](const auto& view) { return view.get() == item; });
    return 1 + static_cast<int>(found - views.begin());
  }

  const UIView& view_;
  Axis axis_;
  LayoutDirection direction_;
};

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

AxisItem placedByHand(double start, double length) { return {start, length, std::nullopt}; }

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
  const RuleReader down(view, Axis::vertical, context_.display.direction);
  const auto rows = placeAlong(itemsDown(view, columns), down.rules, frame.size.height);
  const auto subviews = view.subviews();
  for (std::size_t i = 0; i < subviews.size(); ++i) {
    layOut(*subviews[i], {{columns[i].start, rows[i].start}, {columns[i].length, rows[i].length}});
  }
}

ViewLayout::Length ViewLayout::naturalWidth(const UIView& view) const {
  if (const auto content = view.intrinsicContentSize(std::nullopt, context_)) return content->width;
  // The width is the same in both reading directions.
  const RuleReader reader(view, Axis::horizontal, LayoutDirection::leftToRight);
  return fittingExtent(itemsAcross(view), reader.rules);
}

ViewLayout::Length ViewLayout::naturalHeight(const UIView& view, double width) const {
  if (const auto content = view.intrinsicContentSize(width, context_)) return content->height;
  const RuleReader down(view, Axis::vertical, context_.display.direction);
  return fittingExtent(itemsDown(view, across(view, width)), down.rules);
}

std::vector<AxisSpan> ViewLayout::across(const UIView& view, double width) const {
  const RuleReader reader(view, Axis::horizontal, context_.display.direction);
  return placeAlong(itemsAcross(view), reader.rules, width);
}

std::vector<AxisItem> ViewLayout::itemsAcross(const UIView& view) const {
  std::vector<AxisItem> items;
  for (const auto& subview : view.subviews()) {
    const layout::Rect& frame = subview->frame();
    items.push_back(subview->translatesAutoresizingMaskIntoConstraints()
                        ? placedByHand(frame.left(), frame.size.width)
                        : AxisItem{{}, {}, naturalWidth(*subview)});
  }
  return items;
}

std::vector<AxisItem> ViewLayout::itemsDown(const UIView& view,
                                            const std::vector<AxisSpan>& across) const {
  std::vector<AxisItem> items;
  for (std::size_t i = 0; i < view.subviews().size(); ++i) {
    const UIView& subview = *view.subviews()[i];
    const layout::Rect& frame = subview.frame();
    items.push_back(subview.translatesAutoresizingMaskIntoConstraints()
                        ? placedByHand(frame.top(), frame.size.height)
                        : AxisItem{{}, {}, naturalHeight(subview, across[i].length)});
  }
  return items;
}

}  // namespace quorix::uikit
