#include "platform/swiftui/LayoutPass.h"

#include "platform/layout/Geometry.h"

namespace quorix::swiftui {

layout::Size LayoutPass::measure(Element& element, layout::ProposedSize proposal) {
  for (const MeasuredSize* known = element.measured; known; known = known->next) {
    if (known->proposal == proposal) return known->size;
  }
  const layout::Size size = element.rules->measure(*this, element, proposal);
  if (!element.rules->isTransparent()) {
    element.measured = arena.make<MeasuredSize>(proposal, size, element.measured);
  }
  return size;
}

void LayoutPass::place(Element& element, layout::Point origin, layout::ProposedSize proposal) {
  setFrame(element, {origin, measure(element, proposal)}, proposal);
}

void LayoutPass::setFrame(Element& element, const layout::Rect& frame,
                          layout::ProposedSize proposal) {
  element.frame = frame;
  element.rules->place(*this, element, proposal);
}

void LayoutPass::placeAligned(Element& element, const layout::Rect& within,
                              layout::Alignment alignment, layout::ProposedSize proposal) {
  const layout::Size size = measure(element, proposal);
  const layout::Point offset = layout::alignedOffset(alignment, within.size, size);
  setFrame(element, {{within.left() + offset.x, within.top() + offset.y}, size}, proposal);
}

void mirror(Element& element, double width) {
  element.frame.origin.x = width - element.frame.right();
  for (Element* child = element.children.first; child; child = child->next) mirror(*child, width);
}

}  // namespace quorix::swiftui
