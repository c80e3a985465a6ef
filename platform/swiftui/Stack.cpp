#include "platform/swiftui/Stack.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/layout/Geometry.h"
#include "platform/layout/StackDistribution.h"
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
using layout::StackChild;

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

/// Whether a word breaks in a row whose children have their current lengths. Stores each child's
/// least length in `children`.
bool breaksWords(LayoutPass& in, std::span<Element* const> elements,
                 std::span<StackChild> children) {
  const auto gaveWay = [](const StackChild& child) {
    return !child.isSpacer && child.length < child.atInfinity;
  };
  // If every child got its ideal length, no word breaks. Most rows end here.
  if (std::none_of(children.begin(), children.end(), gaveWay)) return false;

  bool breaks = false;
  for (std::size_t i = 0; i < children.size(); ++i) {
    StackChild& child = children[i];
    const bool reads = elements[i]->holdsText;
    if (!reads && child.atInfinity == layout::infinity) continue;
    child.least = reads ? in.leastWidth(*elements[i]) : child.atInfinity;
    breaks = breaks || (gaveWay(child) && child.length < child.least);
  }
  return breaks;
}

/// A row or column of views.
class StackNode final : public Node {
 public:
  StackNode(Axis axis, layout::Alignment alignment, std::optional<double> spacing, Views children)
      : rules_(axis, alignment, spacing.value_or(layout::defaultSpacing)),
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

  void evaluate(Evaluator& in, const Look& look, Axis, ElementList& out) const override {
    Look inner = look;
    inner.inColumn = rules_.axis() == Axis::vertical;
    inner.inRow = rules_.axis() == Axis::horizontal;
    ElementList children;
    in.collectAll(children_, inner, rules_.axis(), children);
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
  static const Stack rules(Axis::vertical, {}, layout::defaultSpacing);
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
      self.anyHeight ? self.dividedFor.width == proposal.width : self.dividedFor == proposal;
  if (alike && self.offers.size() == count) return self.offers;

  const std::span offers(in.arena.array<std::optional<double>>(count), count);
  self.dividedFor = proposal;
  self.offers = offers;
  const auto offered = along(axis_, proposal);
  if (!offered) return offers;

  const std::span elements(in.arena.array<Element*>(count), count);
  Element* next = self.children.first;
  for (Element*& child : elements) child = std::exchange(next, next->next);
  const auto ask = [&](std::size_t index, double offer) {
    offers[index] = offer;
    return along(axis_, in.measure(*elements[index], withLength(axis_, proposal, offer)));
  };

  const std::span children(in.arena.array<StackChild>(count), count);
  self.anyHeight = axis_ == Axis::horizontal;
  for (std::size_t i = 0; i < count; ++i) {
    const bool gives = axis_ == Axis::horizontal && elements[i]->isText;
    self.anyHeight = self.anyHeight && (gives || elements[i]->isSpacer);
    // A text's minimum width counts as 0, so shaping is skipped.
    children[i].atZero = gives ? 0 : ask(i, 0);
    children[i].atInfinity = ask(i, layout::infinity);
    children[i].isSpacer = elements[i]->isSpacer;
  }
  const layout::StackChildren asked = {children, {in.arena.array<StackChild*>(count), count}};
  const double available = *offered - totalSpacing(self);
  layout::distribute(asked, available, ask);
  if (axis_ == Axis::horizontal && breaksWords(in, elements, children)) {
    layout::distribute(asked, available, ask);
  }
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
