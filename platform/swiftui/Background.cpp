// The modifiers that paint around their content or behind it, and the one that ignores the safe
// area.
#include <string>
#include <utility>

#include "platform/swiftui/DisplayListBuilder.h"
#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/Modifier.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {
namespace {

using layout::EdgeInsets;
using layout::ProposedSize;

/// Extends `frame` beyond the safe area on those of `edges` where it touches the safe area's edge.
layout::Rect beyondSafeArea(const LayoutPass& in, const layout::Rect& frame, layout::Edges edges) {
  const EdgeInsets more = in.safeArea.beyond(frame, edges);
  return {{frame.left() - more.leading, frame.top() - more.top},
          {frame.size.width + more.leading + more.trailing,
           frame.size.height + more.top + more.bottom}};
}

using SizedAsContent = Transparent<LayoutModifier>;

class EdgesIgnoringSafeArea final : public SizedAsContent {
 public:
  EdgesIgnoringSafeArea(View content, layout::Edges edges)
      : SizedAsContent(std::move(content)), edges_(edges) {}

  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    const layout::Rect frame = beyondSafeArea(in, self.frame, edges_);
    in.place(self.child(), frame.origin, frame == self.frame ? proposal : exactly(frame.size));
  }

 private:
  std::string description() const override {
    return ".edgesIgnoringSafeArea(" + describe(edges_) + ")";
  }

  layout::Edges edges_;
};

struct FilledElement final : Element {
  using Element::Element;

  layout::Rect filled;  ///< the frame, extended by the safe area that the fill ignores
};

class Background final : public SizedAsContent {
 public:
  Background(View content, Color color, layout::Edges ignoresSafeAreaEdges)
      : SizedAsContent(std::move(content)),
        color_(std::move(color)),
        ignores_(ignoresSafeAreaEdges) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    const auto count = [&](Element&) { ++in.result().items; };
    in.wrapEach<FilledElement>(content(), look, out, count, *this);
  }

  void place(LayoutPass& in, Element& self, ProposedSize proposal) const override {
    SizedAsContent::place(in, self, proposal);
    static_cast<FilledElement&>(self).filled = beyondSafeArea(in, self.frame, ignores_);
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    const layout::Rect& filled = static_cast<const FilledElement&>(self).filled;
    to.list.items.push_back(
        render::FillItem{to.onPixels(to.mirrored(filled)), drawnColor(color_, to.environment)});
    to.showChildren(self);
  }

 private:
  std::string description() const override {
    const bool ignores = ignores_ != layout::Edges{};
    return ".background(" + color_.description() +
           (ignores ? ", ignoresSafeAreaEdges: " + describe(ignores_) : "") + ")";
  }

  Color color_;
  layout::Edges ignores_;
};

class Border final : public SizedAsContent {
 public:
  Border(View content, Color color, double width)
      : SizedAsContent(std::move(content)), color_(std::move(color)), width_(width) {}

  void evaluate(Evaluator& in, const Look& look, ElementList& out) const override {
    ++in.result().items;
    SizedAsContent::evaluate(in, look, out);
  }

  void show(DisplayListBuilder& to, const Element& self) const override {
    to.showChildren(self);
    to.list.items.push_back(
        render::StrokeItem{to.onPixels(self.frame), drawnColor(color_, to.environment), width_});
  }

 private:
  std::string description() const override {
    return ".border(" + color_.description() + ", width: " + number(width_) + ")";
  }

  Color color_;
  double width_;
};

}  // namespace

View View::edgesIgnoringSafeArea(layout::Edges edges) const {
  return makeView<EdgesIgnoringSafeArea>(*this, edges);
}

View View::background(Color color, layout::Edges ignoresSafeAreaEdges) const {
  return makeView<Background>(*this, std::move(color), ignoresSafeAreaEdges);
}

View View::border(Color color, double width) const {
  return makeView<Border>(*this, std::move(color), width);
}

}  // namespace quorix::swiftui
