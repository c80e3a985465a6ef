#include "platform/swiftui/Stack.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::Axis;
using layout::ProposedSize;
using layout::Size;

double along(Axis axis, Size size) { return axis == Axis::horizontal ? size.width : size.height; }
double across(Axis axis, Size size) { return axis == Axis::horizontal ? size.height : size.width; }
std::optional<double> along(Axis axis, ProposedSize size) {
  return axis == Axis::horizontal ? size.width : size.height;
}

Size sized(Axis axis, double length, double crossLength) {
  return axis == Axis::horizontal ? Size{length, crossLength} : Size{crossLength, length};
}

ProposedSize withLength(Axis axis, ProposedSize proposal, std::optional<double> length) {
  (axis == Axis::horizontal ? proposal.width : proposal.height) = length;
  return proposal;
}

/// The lengths of a stack's child along the stack's axis.
struct StackChild {
  Element* element = nullptr;
  std::optional<double>* offer = nullptr;  ///< the latest one; an element of `Offers`
  double atZero = 0;                       ///< chosen length for the offer 0
  double atInfinity = 0;                   ///< chosen length for an infinite offer
  double least = 0;                        ///< minimum length without breaking a word
  double length = 0;                       ///< the chosen length
  double kept = 0;                         ///< reserved: offers to other children leave this

  bool isSpacer() const { return element->isSpacer; }
  bool gaveWay() const { return !isSpacer() && length < atInfinity; }
  /// The least flexible are asked first, spacers last.
  auto turn() const {
    const bool isEndless = atInfinity == layout::infinity;
    return std::tuple(isSpacer(), isEndless ? atInfinity : atInfinity - atZero, offer);
  }
};

/// Reserves each child's least length in `kept`. If these exceed `available` together, reduces each
/// child by the same fraction of what it can give up. Returns the sum of the reserved lengths.
double reserve(std::span<StackChild> children, double available) {
  const auto given = [](const StackChild& child) {
    return std::max(0.0, child.least - child.atZero);
  };
  double rigid = 0;
  double giving = 0;
  for (const StackChild& child : children) {
    rigid += child.atZero;
    giving += given(child);
  }
  const double part = giving > 0 ? std::clamp((available - rigid) / giving, 0.0, 1.0) : 1;
  double sum = 0;
  for (StackChild& child : children) {
    child.kept = child.least > 0 ? child.atZero + part * given(child) : 0;
    sum += child.kept;
  }
  return sum;
}

/// Divides `available` (what is left after the spacing; may be infinite) among `children`. Offers
/// one child after the other an equal share of the rest; the spacers' minimum lengths are reserved.
/// No offer is below the child's `least`, or pushes another child below its own, while `available`
/// suffices. `ask(child, offer)` returns the length that the child chooses.
template <class Ask>
void distribute(std::span<StackChild> children, double available, Ask ask) {
  const auto spacers = std::ranges::find_if(children, &StackChild::isSpacer);
  double reserved = 0;
  for (auto spacer = spacers; spacer != children.end(); ++spacer) reserved += spacer->atZero;
  double keptForOthers = reserve(children, available);
  double left = available - reserved;
  for (auto child = children.begin(); child != children.end(); ++child) {
    if (child == spacers) left += reserved;
    const auto unasked = (child < spacers ? spacers : children.end()) - child;
    const double share = left / static_cast<double>(unasked);
    keptForOthers -= child->kept;
    const double offer = std::max(std::min(share, left - keptForOthers), child->kept);
    child->length = ask(*child, std::max(0.0, offer));
    if (left != layout::infinity) left -= child->length;
  }
}

/// Whether a word breaks in a row whose children have their current lengths. Stores each child's
/// least length in `children`.
bool breaksWords(LayoutPass& in, std::span<StackChild> children) {
  // If every child got its ideal length, no word breaks. Most rows end here.
  if (std::ranges::none_of(children, &StackChild::gaveWay)) return false;
  bool breaks = false;
  for (StackChild& child : children) {
    const bool reads = child.element->holdsText;
    if (!reads && child.atInfinity == layout::infinity) continue;
    child.least = reads ? in.leastWidth(*child.element) : child.atInfinity;
    breaks = breaks || (child.gaveWay() && child.length < child.least);
  }
  return breaks;
}

/// A row or column of views.
class StackNode final : public Node {
 public:
  StackNode(Axis axis, layout::Alignment alignment, std::optional<double> spacing, Views children)
      : rules_(axis, alignment, spacing.value_or(defaultSpacing)),
        alignment_(alignment),
        spacing_(spacing),
        children_(children.begin(), children.end(), foundation::Arena::currentResource()) {}

  void print(TreePrinter& to, int depth) const override {
    const bool horizontal = rules_.axis() == Axis::horizontal;
    const auto alignment = horizontal ? nameOf(alignment_.vertical) : nameOf(alignment_.horizontal);
    to.line(depth, std::string(horizontal ? "HStack" : "VStack") +
                       "(alignment: " + std::string(alignment) +
                       ", spacing: " + (spacing_ ? number(*spacing_) : "default") + ")");
    for (const View& child : children_) to.print(child, depth + 1);
  }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    Look inner = look;
    inner.stack = rules_.axis();
    ElementList children;
    in.collectAll(children_, inner, children);
    out.append(in.stacked(rules_, children));
  }

 private:
  Stack rules_;
  layout::Alignment alignment_;
  std::optional<double> spacing_;
  std::pmr::vector<View> children_;
};

}  // namespace

const Stack& Stack::column() {
  static const Stack rules(Axis::vertical, {}, defaultSpacing);
  return rules;
}

double Stack::totalSpacing(const Element& self) const {
  const std::size_t count = self.children.count;
  return count == 0 ? 0 : spacing_ * static_cast<double>(count - 1);
}

Size Stack::measure(LayoutPass& in, Element& self, ProposedSize proposal) const {
  const Offers offers = divide(in, self, proposal);
  double length = totalSpacing(self);
  double crossLength = 0;
  Element* child = self.children.first;
  for (std::size_t i = 0; i < offers.size(); ++i, child = child->next) {
    const Size size = in.measure(*child, withLength(axis_, proposal, offers[i]));
    length += along(axis_, size);
    crossLength = std::max(crossLength, across(axis_, size));
  }
  return sized(axis_, length, crossLength);
}

void Stack::place(LayoutPass& in, Element& self, ProposedSize proposal) const {
  const Offers offers = divide(in, self, proposal);
  double position = 0;
  Element* child = self.children.first;
  for (std::size_t i = 0; i < offers.size(); ++i, child = child->next) {
    const ProposedSize offered = withLength(axis_, proposal, offers[i]);
    const Size size = in.measure(*child, offered);
    const layout::Point cross = layout::alignedOffset(alignment_, self.frame.size, size);
    const layout::Point offset = axis_ == Axis::horizontal ? layout::Point{position, cross.y}
                                                           : layout::Point{cross.x, position};
    const layout::Point origin = {self.frame.left() + offset.x, self.frame.top() + offset.y};
    in.setFrame(*child, {origin, size}, offered);
    position += along(axis_, size) + spacing_;
  }
}

double Stack::leastWidth(LayoutPass& in, Element& self) const {
  double width = 0;
  for (Element* child = self.children.first; child; child = child->next) {
    const double least = in.leastWidth(*child);
    width = axis_ == Axis::horizontal ? width + least : std::max(width, least);
  }
  return axis_ == Axis::horizontal ? width + totalSpacing(self) : width;
}

void Stack::show(DisplayListBuilder& to, const Element& self) const { to.showChildren(self); }

Stack::Offers Stack::divide(LayoutPass& in, Element& element, ProposedSize proposal) const {
  auto& self = static_cast<StackElement&>(element);
  const std::size_t count = self.children.count;
  const bool alike =
      self.ignoresHeight ? self.dividedFor.width == proposal.width : self.dividedFor == proposal;
  if (alike && self.offers.size() == count) return self.offers;

  const std::span offers(in.arena.array<std::optional<double>>(count), count);
  self.dividedFor = proposal;
  self.offers = offers;
  const auto offered = along(axis_, proposal);
  if (!offered) return offers;

  const auto ask = [&](const StackChild& child, double offer) {
    *child.offer = offer;
    return along(axis_, in.measure(*child.element, withLength(axis_, proposal, offer)));
  };
  const bool isRow = axis_ == Axis::horizontal;
  const std::span children(in.arena.array<StackChild>(count), count);
  self.ignoresHeight = isRow;
  Element* next = self.children.first;
  for (std::size_t i = 0; i < count; ++i, next = next->next) {
    StackChild& child = children[i];
    child.element = next;
    child.offer = &offers[i];
    const bool gives = isRow && next->isText;
    self.ignoresHeight = self.ignoresHeight && (gives || next->isSpacer);
    // A text's minimum width counts as 0, so shaping is skipped.
    child.atZero = gives ? 0 : ask(child, 0);
    child.atInfinity = ask(child, layout::infinity);
  }
  std::ranges::sort(children, {}, &StackChild::turn);
  const double available = *offered - totalSpacing(self);
  distribute(children, available, ask);
  if (isRow && breaksWords(in, children)) distribute(children, available, ask);
  return offers;
}

View HStack(layout::VerticalAlignment alignment, std::optional<double> spacing, Views children) {
  return makeView<StackNode>(Axis::horizontal,
                             layout::Alignment{layout::HorizontalAlignment::center, alignment},
                             spacing, children);
}

View VStack(layout::HorizontalAlignment alignment, std::optional<double> spacing, Views children) {
  return makeView<StackNode>(Axis::vertical,
                             layout::Alignment{alignment, layout::VerticalAlignment::center},
                             spacing, children);
}

}  // namespace quorix::swiftui
