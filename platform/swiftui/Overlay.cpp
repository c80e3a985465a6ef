#include <algorithm>
#include <string>
#include <utility>

#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::ProposedSize;
using layout::Size;
using SizedAsContent = Transparent<LayoutModifier>;

struct OverlaidElement final : Element {
  using Element::Element;

  bool makesWay = false;  ///< the user chose a large text size
};

bool hasTextUnder(const layout::Rect& cover, const Element& element) {
  constexpr double touching = 0.5;  // points
  const layout::Size common = layout::intersection(element.frame, cover).size;
  if (element.isText) return common.width > touching && common.height > touching;
  for (const Element* child = element.children.first; child; child = child->next) {
    if (hasTextUnder(cover, *child)) return true;
  }
  return false;
}

/// Places its second child over the first, in the first one's frame. If large text would lie under
/// a top-aligned second child, moves the first child below it.
class Overlay final : public SizedAsContent {
 public:
  Overlay(View content, layout::Alignment alignment, View above)
      : SizedAsContent(std::move(content)), alignment_(alignment), above_(std::move(above)) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    ElementList wrapped;
    in.at(steps::modified, [&] {
      const auto adapt = [&](OverlaidElement& self) {
        self.makesWay = in.environment.textSize > ContentSizeCategory::large;
      };
      in.wrapEach<OverlaidElement>(content(), look, wrapped, adapt, *this);
    });
    char32_t step = steps::firstOverlay;
    for (Element* element = wrapped.first; element; element = element->next) {
      in.at(step++, [&] { in.adopt(*element, in.single(above_, look)); });
    }
    out.appendAll(wrapped);
  }

  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    SizedAsContent::place(in, self, proposal);
    Element& above = *self.children.last;
    in.placeAligned(above, self.frame, alignment_, exactly(self.frame.size));
    const bool makesWay = static_cast<OverlaidElement&>(self).makesWay &&
                          alignment_.vertical == layout::VerticalAlignment::top;
    if (!makesWay || !hasTextUnder(above.frame, self.child())) return;
    const double down = above.frame.bottom() - self.frame.top();
    const Size left = {self.frame.size.width, std::max(0.0, self.frame.size.height - down)};
    in.place(self.child(), {self.frame.left(), above.frame.bottom()}, exactly(left));
  }

 private:
  std::string description() const override {
    return ".overlay(alignment: " + nameOf(alignment_) + ")";
  }
  void printBelow(TreePrinter& to, int depth) const override { to.print(above_, depth); }

  layout::Alignment alignment_;
  View above_;
};

}  // namespace

View View::overlay(layout::Alignment alignment, View content) const {
  return makeView<Overlay>(*this, alignment, std::move(content));
}

}  // namespace quorix::swiftui
