#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "platform/swiftui/LayoutPass.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::EdgeInsets;

std::optional<double> shrunk(std::optional<double> length, double by) {
  if (!length) return std::nullopt;
  return std::max(0.0, *length - by);
}

class Padding final : public LayoutModifier {
 public:
  Padding(View content, EdgeInsets insets, std::optional<layout::Edges> edges, double length)
      : LayoutModifier(std::move(content)), insets_(insets), edges_(edges), length_(length) {}

  layout::Size measure(LayoutPass& in, Element& self,
                       layout::ProposedSize proposal) const override {
    const layout::Size size = in.measure(self.child(), inside(proposal));
    return {size.width + across(), size.height + insets_.top + insets_.bottom};
  }

  void place(LayoutPass& in, Element& self, layout::ProposedSize proposal) const override {
    in.place(self.child(), {self.frame.left() + insets_.leading, self.frame.top() + insets_.top},
             inside(proposal));
  }

  double leastWidth(LayoutPass& in, Element& self) const override {
    return in.leastWidth(self.child()) + across();
  }

 private:
  std::string description() const override {
    return ".padding(" + (edges_ ? describe(*edges_) + ", " + number(length_) : describe(insets_)) +
           ")";
  }

  double across() const { return insets_.leading + insets_.trailing; }
  layout::ProposedSize inside(layout::ProposedSize proposal) const {
    return {shrunk(proposal.width, across()),
            shrunk(proposal.height, insets_.top + insets_.bottom)};
  }

  EdgeInsets insets_;
  // For printing, if the padding was given as edges and one length.
  std::optional<layout::Edges> edges_;
  double length_;
};

}  // namespace

View View::padding(double length) const { return padding({length, length, length, length}); }

View View::padding(EdgeInsets insets) const {
  return makeView<Padding>(*this, insets, std::nullopt, 0.0);
}

View View::padding(layout::Edges edges, double length) const {
  const EdgeInsets insets = {edges.top ? length : 0, edges.leading ? length : 0,
                             edges.bottom ? length : 0, edges.trailing ? length : 0};
  return makeView<Padding>(*this, insets, edges, length);
}

}  // namespace quorix::swiftui
