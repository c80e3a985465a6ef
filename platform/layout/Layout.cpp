#include "platform/layout/Layout.h"

#include <algorithm>

#include "platform/layout/Alignment.h"
#include "platform/layout/StackDistribution.h"

namespace quorix::layout {
namespace {

/// What an image or a divider takes along an axis on which nothing was proposed.
constexpr double idealLength = 10;

double along(Axis axis, Size size) { return axis == Axis::horizontal ? size.width : size.height; }
double across(Axis axis, Size size) { return axis == Axis::horizontal ? size.height : size.width; }

Size sized(Axis axis, double length, double crossLength) {
  return axis == Axis::horizontal ? Size{length, crossLength} : Size{crossLength, length};
}

ProposedSize withLength(Axis axis, ProposedSize proposal, std::optional<double> length) {
  (axis == Axis::horizontal ? proposal.width : proposal.height) = length;
  return proposal;
}

std::optional<double> shrunk(std::optional<double> length, double by) {
  if (!length) return std::nullopt;
  return std::max(0.0, *length - by);
}

ProposedSize inside(const EdgeInsets& insets, ProposedSize proposal) {
  return {shrunk(proposal.width, insets.leading + insets.trailing),
          shrunk(proposal.height, insets.top + insets.bottom)};
}

ProposedSize inside(const elements::FixedFrame& frame, ProposedSize proposal) {
  return {frame.width ? frame.width : proposal.width,
          frame.height ? frame.height : proposal.height};
}

ProposedSize inside(const elements::FixedSize& fixed, ProposedSize proposal) {
  if (fixed.horizontal) proposal.width.reset();
  if (fixed.vertical) proposal.height.reset();
  return proposal;
}

/// The largest size in the proportion of `ideal` that fits into `proposal`.
ProposedSize fitting(Size ideal, ProposedSize proposal) {
  if (ideal.width <= 0 || ideal.height <= 0) return proposal;
  if (!proposal.width && !proposal.height) return {ideal.width, ideal.height};
  const double byWidth = proposal.width.value_or(infinity) / ideal.width;
  const double byHeight = proposal.height.value_or(infinity) / ideal.height;
  const double scale = std::min(byWidth, byHeight);
  return {ideal.width * scale, ideal.height * scale};
}

Size outset(Size size, const EdgeInsets& by) {
  return {size.width + by.leading + by.trailing, size.height + by.top + by.bottom};
}

ProposedSize exactly(Size size) { return {size.width, size.height}; }

/// A text gives way down to nothing worth counting, so nobody shapes it to learn that.
bool isText(const Element& element) {
  if (std::holds_alternative<elements::Decorated>(element.kind)) {
    return isText(element.children.front());
  }
  return std::holds_alternative<elements::Text>(element.kind);
}

/// Points; as much as a text engine's own rounding may take.
constexpr double roundingNoise = 1.0 / 32;

}  // namespace

struct Layout::Chooser {
  Layout& layout;
  Element& element;
  ProposedSize proposal;

  Size child(ProposedSize to) { return layout.measure(element.children.front(), to); }

  Size offered() const {
    return {proposal.width.value_or(idealLength), proposal.height.value_or(idealLength)};
  }

  Size operator()(const elements::Empty&) { return {}; }

  Size operator()(const elements::Text&) { return layout.measureText(element, proposal); }

  Size operator()(const elements::Image& image) {
    if (!image.resizable) return image.naturalSize;
    return {proposal.width.value_or(image.naturalSize.width),
            proposal.height.value_or(image.naturalSize.height)};
  }

  Size operator()(const elements::Spacer& spacer) {
    const auto offered = spacer.axis == Axis::horizontal ? proposal.width : proposal.height;
    return sized(spacer.axis, std::max(spacer.minLength, offered.value_or(0)), 0);
  }

  Size operator()(const elements::Divider& divider) {
    const auto offered = divider.axis == Axis::horizontal ? proposal.height : proposal.width;
    return sized(divider.axis, layout.grid_.pixel(), offered.value_or(idealLength));
  }

  Size operator()(const elements::Fill&) { return offered(); }
  Size operator()(const elements::Stroke&) { return offered(); }

  Size operator()(const elements::Hosted& hosted) {
    return hosted.sizing->sizeThatFits(proposal, layout.engine_, 1 / layout.grid_.pixel());
  }

  Size operator()(const elements::Stack& stack) {
    const Offers offers = layout.divide(element, proposal);
    double length = totalSpacing(stack, element.children.size());
    double crossLength = 0;
    for (std::size_t i = 0; i < offers.size(); ++i) {
      const Size size =
          layout.measure(element.children[i], withLength(stack.axis, proposal, offers[i]));
      length += along(stack.axis, size);
      crossLength = std::max(crossLength, across(stack.axis, size));
    }
    return sized(stack.axis, length, crossLength);
  }

  Size operator()(const elements::Padding& padding) {
    return outset(child(inside(padding.insets, proposal)), padding.insets);
  }

  Size operator()(const elements::FixedFrame& frame) {
    const Size size = child(inside(frame, proposal));
    return {frame.width.value_or(size.width), frame.height.value_or(size.height)};
  }

  Size operator()(const elements::MaxWidthFrame&) {
    const Size size = child(proposal);
    return {proposal.width.value_or(size.width), size.height};
  }

  Size operator()(const elements::FixedSize& fixed) { return child(inside(fixed, proposal)); }
  Size operator()(const elements::ScaledToFit&) {
    return child(layout.fittingChild(element, proposal));
  }
  Size operator()(const elements::Overlay&) { return child(proposal); }
  Size operator()(const elements::Background&) { return child(proposal); }
  Size operator()(const elements::IgnoringSafeArea&) { return child(proposal); }
  Size operator()(const elements::Decorated&) { return child(proposal); }
};

struct Layout::Placer {
  Layout& layout;
  Element& element;
  ProposedSize proposal;

  void child(std::size_t index, Point offset, ProposedSize offered) {
    const Point origin = element.frame.origin;
    layout.place(element.children[index], {origin.x + offset.x, origin.y + offset.y}, offered);
  }

  void aligned(std::size_t index, Alignment alignment, ProposedSize offered) {
    const Size size = layout.measure(element.children[index], offered);
    child(index, alignedOffset(alignment, element.frame.size, size), offered);
  }

  void operator()(const elements::Empty&) {}
  void operator()(elements::Text& text) { text.drawnAt = layout.drawnPart(element, proposal); }
  void operator()(const elements::Image&) {}
  void operator()(const elements::Spacer&) {}
  void operator()(const elements::Divider&) {}
  void operator()(const elements::Fill&) {}
  void operator()(const elements::Stroke&) {}
  void operator()(const elements::Hosted&) {}

  void operator()(const elements::Stack& stack) {
    const Offers offers = layout.divide(element, proposal);
    double position = 0;
    for (std::size_t i = 0; i < offers.size(); ++i) {
      const ProposedSize offered = withLength(stack.axis, proposal, offers[i]);
      const Size size = layout.measure(element.children[i], offered);
      const Point crossOffset = alignedOffset(stack.alignment, element.frame.size, size);
      child(i,
            stack.axis == Axis::horizontal ? Point{position, crossOffset.y}
                                           : Point{crossOffset.x, position},
            offered);
      position += along(stack.axis, size) + stack.spacing;
    }
  }

  void operator()(const elements::Padding& padding) {
    child(0, {padding.insets.leading, padding.insets.top}, inside(padding.insets, proposal));
  }

  void operator()(const elements::FixedFrame& frame) {
    aligned(0, frame.alignment, inside(frame, proposal));
  }

  void operator()(const elements::MaxWidthFrame& frame) { aligned(0, frame.alignment, proposal); }
  void operator()(const elements::FixedSize& fixed) { child(0, {}, inside(fixed, proposal)); }
  void operator()(const elements::Decorated&) { child(0, {}, proposal); }

  void operator()(const elements::Overlay& overlay) {
    child(0, {}, proposal);
    aligned(1, overlay.alignment, exactly(element.frame.size));
  }

  void operator()(const elements::Background&) {
    child(0, {}, proposal);
    child(1, {}, exactly(element.frame.size));
  }

  void operator()(const elements::ScaledToFit&) {
    child(0, {}, layout.fittingChild(element, proposal));
  }

  void operator()(const elements::IgnoringSafeArea& ignoring) {
    const EdgeInsets more = layout.safeArea_.beyond(element.frame, ignoring.edges);
    if (more == EdgeInsets{}) return child(0, {}, proposal);
    child(0, {-more.leading, -more.top}, exactly(outset(element.frame.size, more)));
  }
};

Size Layout::measure(Element& element, ProposedSize proposal) {
  for (const auto& [offered, size] : element.measured) {
    if (offered == proposal) return size;
  }
  const Size size = std::visit(Chooser{*this, element, proposal}, element.kind);
  element.measured.emplace_back(proposal, size);
  return size;
}

void Layout::place(Element& element, Point origin, ProposedSize proposal) {
  element.frame = {origin, measure(element, proposal)};
  std::visit(Placer{*this, element, proposal}, element.kind);
}

ProposedSize Layout::fittingChild(Element& fit, ProposedSize proposal) {
  return fitting(measure(fit.children.front(), {}), proposal);
}

Size Layout::measureText(Element& element, ProposedSize proposal) {
  const double width = proposal.width.value_or(infinity);
  // Whatever is proposed for the height, a text keeps all its lines; and from its ideal width on,
  // more width changes nothing.
  for (const auto& [offered, size] : element.measured) {
    const double earlier = offered.width.value_or(infinity);
    if (earlier == width || (earlier == infinity && size.width <= width)) return size;
  }
  const auto& text = std::get<elements::Text>(element.kind);
  if (width != infinity) {
    const Size ideal = measure(element, {std::nullopt, proposal.height});
    if (ideal.width <= width) return ideal;
  }
  const double part = drawnPart(element, proposal);
  const Size size =
      grid_.ceil(engine_.measure(part == 1 ? text.text : text.text.scaled(part), width).size);
  const bool spans = text.spansWhenWrapped && width != infinity;
  return {spans ? std::max(width, size.width) : size.width, size.height};
}

double Layout::drawnPart(Element& element, ProposedSize proposal) {
  const auto& text = std::get<elements::Text>(element.kind);
  const double width = proposal.width.value_or(infinity);
  if (text.smallestPart == 1 || width == infinity) return 1;
  if (measure(element, {std::nullopt, proposal.height}).width <= width) return 1;
  const double least = grid_.ceil(engine_.leastWidth(text.text));
  if (least <= width) return 1;
  const double part = (grid_.floor(width) - roundingNoise) / least;
  return part < text.smallestPart ? 1 : part;
}

Layout::Offers Layout::divide(Element& stackElement, ProposedSize proposal) {
  const auto& stack = std::get<elements::Stack>(stackElement.kind);
  std::vector<Element>& children = stackElement.children;
  Offers offers(children.size());
  const auto offered = stack.axis == Axis::horizontal ? proposal.width : proposal.height;
  if (!offered) return offers;
  const auto ask = [&](std::size_t index, double offer) {
    offers[index] = offer;
    return along(stack.axis, measure(children[index], withLength(stack.axis, proposal, offer)));
  };
  std::vector<StackChild> flexing(children.size());
  for (std::size_t i = 0; i < children.size(); ++i) {
    flexing[i] = {stack.axis == Axis::horizontal && isText(children[i]) ? 0 : ask(i, 0),
                  ask(i, infinity), std::holds_alternative<elements::Spacer>(children[i].kind)};
  }
  const double available = *offered - totalSpacing(stack, children.size());
  const std::vector<double> given = distribute(flexing, available, ask);
  if (stack.axis == Axis::horizontal && breaksWords(stackElement, flexing, given)) {
    distribute(flexing, available, ask);
  }
  return offers;
}

void mirror(Element& element, double width) {
  element.frame.origin.x = width - element.frame.right();
  for (Element& child : element.children) mirror(child, width);
}

}  // namespace quorix::layout
