#include "platform/swiftui/Modifier.h"

#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {

void Modifier::print(TreePrinter& to, int depth) const {
  to.print(content_, depth);
  to.line(depth + 2, description());
  printBelow(to, depth + 3);
}

void LayoutModifier::evaluate(Evaluator& in, const Look& look, ElementList& out) const {
  in.wrapEach<Element>(
      content(), look, out, [](Element&) {}, *this);
}

void LayoutModifier::show(DisplayListBuilder& to, const Element& self) const {
  to.showChildren(self);
}

void Decoration::evaluate(Evaluator& in, const Look& look, ElementList& out) const {
  const auto isAsContent = [](Element& self) { self.isText = self.child().isText; };
  in.wrapEach<Element>(content(), look, out, isAsContent, *this);
}

}  // namespace quorix::swiftui
