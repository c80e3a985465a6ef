#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::Axis;

struct ShownDivider final : Element {
  ShownDivider(const ElementRules& kind, Axis stackAxis) : Element(kind), axis(stackAxis) {}

  Axis axis;  ///< of the enclosing stack
};

/// The platform's hairline color.
graphics::RGBA separatorColor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{84, 84, 88, 153}
                                                  : graphics::RGBA{60, 60, 67, 74};
}

class DividerNode final : public Node, public ElementRules {
 public:
  void print(TreePrinter& to, int depth) const override { to.line(depth, "Divider"); }

  void evaluate(Evaluator& in, const Look&, Axis axis, ElementList& out) const override {
    ++in.result().items;
    out.append(in.make<ShownDivider>(static_cast<const ElementRules&>(*this), axis));
  }

  layout::Size measure(LayoutPass& in, Element& self,
                       layout::ProposedSize proposal) const override {
    const layout::Size offered = offeredSize(proposal);
    return axisOf(self) == Axis::horizontal ? layout::Size{in.grid.pixel(), offered.height}
                                            : layout::Size{offered.width, in.grid.pixel()};
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const override {}

  double leastWidth(LayoutPass& in, Element& self) const override {
    return axisOf(self) == Axis::horizontal ? in.grid.pixel() : 0;
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    to.list.items.push_back(
        render::FillItem{to.onPixels(self.frame), separatorColor(to.environment.appearance)});
  }

 private:
  static Axis axisOf(const Element& self) { return static_cast<const ShownDivider&>(self).axis; }
};

}  // namespace

View Divider() { return makeView<DividerNode>(); }

}  // namespace quorix::swiftui
