#include <algorithm>

#include "platform/layout/Layout.h"

namespace quorix::layout {

namespace {

bool holdsText(const Element& element) {
  return std::holds_alternative<elements::Text>(element.kind) ||
         std::any_of(element.children.begin(), element.children.end(), holdsText);
}

}  // namespace

/// Asks an element, and through it all below, how narrow it can be with every word whole.
struct Layout::LeastWidth {
  Layout& layout;
  Element& element;

  double child() { return layout.leastWidth(element.children.front()); }

  double operator()(const elements::Text& text) {
    return layout.grid_.ceil(layout.engine_.leastWidth(text.text));
  }
  double operator()(const elements::Image& image) {
    return image.resizable ? 0 : image.naturalSize.width;
  }
  double operator()(const elements::Spacer& spacer) {
    return spacer.axis == Axis::horizontal ? spacer.minLength : 0;
  }
  double operator()(const elements::Divider& divider) {
    return divider.axis == Axis::horizontal ? layout.grid_.pixel() : 0;
  }
  double operator()(const elements::Stack& stack) {
    double width = 0;
    for (Element& child : element.children) {
      const double least = layout.leastWidth(child);
      width = stack.axis == Axis::horizontal ? width + least : std::max(width, least);
    }
    return stack.axis == Axis::horizontal ? width + totalSpacing(stack, element.children.size())
                                          : width;
  }
  double operator()(const elements::Padding& padding) {
    return child() + padding.insets.leading + padding.insets.trailing;
  }
  double operator()(const elements::FixedFrame& frame) {
    return frame.width ? *frame.width : child();
  }
  double operator()(const elements::FixedSize& fixed) {
    return fixed.horizontal ? layout.measure(element, {}).width : child();
  }
  double operator()(const elements::ScaledToFit&) { return 0; }
  double operator()(const elements::Empty&) { return 0; }
  double operator()(const elements::Fill&) { return 0; }
  double operator()(const elements::Stroke&) { return 0; }
  double operator()(const elements::Hosted&) { return 0; }
  double operator()(const auto&) { return child(); }
};

double Layout::leastWidth(Element& element) {
  return std::visit(LeastWidth{*this, element}, element.kind);
}

bool Layout::breaksWords(Element& stack, std::vector<StackChild>& children,
                         const std::vector<double>& lengths) {
  const auto gaveWay = [&](std::size_t i) {
    return !children[i].isSpacer && lengths[i] < children[i].atInfinity;
  };
  std::size_t first = 0;
  while (first < children.size() && !gaveWay(first)) ++first;
  // Whoever has all that it could use breaks nowhere; most rows end here.
  if (first == children.size()) return false;
  bool breaks = false;
  for (std::size_t i = 0; i < children.size(); ++i) {
    const bool reads = holdsText(stack.children[i]);
    if (!reads && children[i].atInfinity == infinity) continue;
    children[i].least = reads ? leastWidth(stack.children[i]) : children[i].atInfinity;
    breaks = breaks || (gaveWay(i) && lengths[i] < children[i].least);
  }
  return breaks;
}

}  // namespace quorix::layout
