#include <algorithm>
#include <optional>

#include "platform/swiftui/Elements.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/Stack.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::Axis;

class SpacerNode final : public Node, public ElementRules {
 public:
  explicit SpacerNode(std::optional<double> minLength) : minLength_(minLength) {}

  void print(TreePrinter& to, int depth) const override {
    to.line(depth, minLength_ ? "Spacer(minLength: " + number(*minLength_) + ")" : "Spacer");
  }

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    auto* self = in.make<ElementAlongAxis>(*this, look.axis());
    self->isSpacer = true;
    out.append(self);
  }

  layout::Size measure(LayoutPass&, Element& self, layout::ProposedSize proposal) const override {
    const bool horizontal = ElementAlongAxis::axisOf(self) == Axis::horizontal;
    const double length =
        std::max(leastLength(), (horizontal ? proposal.width : proposal.height).value_or(0));
    return horizontal ? layout::Size{length, 0} : layout::Size{0, length};
  }

  void place(LayoutPass&, Element&, layout::ProposedSize) const override {}

  double leastWidth(LayoutPass&, Element& self) const override {
    return ElementAlongAxis::axisOf(self) == Axis::horizontal ? leastLength() : 0;
  }

  void show(DisplayListBuilder&, const Element&) const override {}

 private:
  double leastLength() const { return minLength_.value_or(defaultSpacing); }

  std::optional<double> minLength_;
};

}  // namespace

View Spacer(std::optional<double> minLength) { return makeView<SpacerNode>(minLength); }

}  // namespace quorix::swiftui
