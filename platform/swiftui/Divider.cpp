#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/Stack.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::Axis;

/// The platform's hairline color.
graphics::RGBA separatorColor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{84, 84, 88, 153}
                                                  : graphics::RGBA{60, 60, 67, 74};
}

class DividerNode final : public Node, public ElementRules {
 public:
  void print(TreePrinter& to, int depth) const override { to.line(depth, "Divider"); }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    ++in.result().items;
    out.append(in.make<ElementAlongAxis>(*this, look.axis()));
  }

  layout::Size measure(LayoutPass& in, Element& self,
                       layout::ProposedSize proposal) const override {
    const layout::Size offered = offeredSize(proposal);
    return ElementAlongAxis::axisOf(self) == Axis::horizontal
               ? layout::Size{in.grid.pixel(), offered.height}
               : layout::Size{offered.width, in.grid.pixel()};
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const override {}

  double leastWidth(LayoutPass& in, Element& self) const override {
    return ElementAlongAxis::axisOf(self) == Axis::horizontal ? in.grid.pixel() : 0;
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    to.list.items.push_back(
        render::FillItem{to.onPixels(self.frame), separatorColor(to.environment.appearance)});
  }
};

}  // namespace

View Divider() { return makeView<DividerNode>(); }

}  // namespace quorix::swiftui
