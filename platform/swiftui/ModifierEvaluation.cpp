#include <utility>

#include "platform/swiftui/Evaluator.h"

namespace quorix::swiftui {
namespace {

namespace elements = layout::elements;

layout::EdgeInsets insets(layout::Edges edges, double length) {
  return {edges.top ? length : 0, edges.leading ? length : 0, edges.bottom ? length : 0,
          edges.trailing ? length : 0};
}

/// The platform's colour of what can be tapped.
const Color& accentColor(graphics::Appearance appearance) {
  static const Color light = Color::fixed({0, 122, 255});
  static const Color dark = Color::fixed({10, 132, 255});
  return appearance == graphics::Appearance::dark ? dark : light;
}

template <class M>
concept ReachesDown = requires(Look& look, const M& modifier) {
  look.apply(modifier);
};

}  // namespace

/// Takes a modifier's part in the evaluation and goes on with its content.
struct Evaluator::Modifying {
  Evaluator& self;
  const nodes::Modified& node;
  const View& view;
  Look& inner;
  Axis axis;
  Elements& out;

  void operator()(const ReachesDown auto& m) { inner.apply(m), descend(); }
  void operator()(const modifiers::Padding& m) { wrap(elements::Padding{m.insets}); }
  void operator()(const modifiers::EdgePadding& m) {
    wrap(elements::Padding{insets(m.edges, m.length)});
  }
  void operator()(const modifiers::FixedFrame& m) {
    wrap(elements::FixedFrame{m.width, m.height, m.alignment});
  }
  void operator()(const modifiers::MaxWidthFrame& m) { wrap(elements::MaxWidthFrame{m.alignment}); }
  void operator()(const modifiers::FixedSize& m) {
    wrap(elements::FixedSize{m.horizontal, m.vertical});
  }
  void operator()(const modifiers::ScaledToFit&) { wrap(elements::ScaledToFit{}); }
  void operator()(const modifiers::EdgesIgnoringSafeArea& m) {
    wrap(elements::IgnoringSafeArea{m.edges});
  }
  void operator()(const modifiers::Background& m) {
    Element behind = {elements::IgnoringSafeArea{m.ignoresSafeAreaEdges}, {}, {}, {}};
    behind.children.push_back({elements::Fill{drawn(m.color)}, {}, {}, {}});
    join(elements::Background{}, behind);
  }
  void operator()(const modifiers::Border& m) {
    join(elements::Overlay{}, {elements::Stroke{drawn(m.color), m.width}, {}, {}, {}});
  }
  void operator()(const modifiers::Overlay& m) {
    const std::size_t first = out.size();
    self.at(steps::modified, [&] { wrap(elements::Overlay{m.alignment}); });
    char32_t step = steps::firstOverlay;
    for (std::size_t i = first; i < out.size(); ++i) {
      self.at(step++, [&] { out[i].children.push_back(self.single(m.content, inner, axis)); });
    }
  }
  void operator()(const modifiers::Button&) {
    if (!inner.color) inner.color = &accentColor(self.environment_.appearance);
    Element button = {elements::Decorated{addDecoration()}, {}, {}, {}};
    button.children.push_back(self.single(node.content, inner, axis));
    out.push_back(std::move(button));
  }
  void operator()(const modifiers::Task& m) {
    self.at(steps::modified, [&] {
      self.result_.tasks.push_back({self.path_, m.action});
      descend();
    });
  }
  void operator()(const modifiers::Sheet& m) {
    if (m.isPresented.get()) self.result_.presentation = Presentation{m.isPresented, m.content};
    descend();
  }
  void operator()(const modifiers::Detents& m) {
    self.result_.detents = m.detents;
    descend();
  }
  void operator()(const modifiers::GeometryChange&) {
    self.at(steps::modified, [&] { decorate(); });
  }
  void operator()(const auto&) { decorate(); }

  void descend() { self.collect(node.content, inner, axis, out); }

  /// Applies a modifier that changes the layout to each element of its content.
  template <class Kind>
  void wrap(const Kind& kind) {
    const std::size_t first = out.size();
    descend();
    for (std::size_t i = first; i < out.size(); ++i) {
      Element wrapped = {kind, {}, {}, {}};
      wrapped.children.push_back(std::move(out[i]));
      out[i] = std::move(wrapped);
    }
  }

  /// Puts `second` with each element of the content.
  template <class Kind>
  void join(const Kind& kind, const Element& second) {
    const std::size_t first = out.size();
    wrap(kind);
    for (std::size_t i = first; i < out.size(); ++i) out[i].children.push_back(second);
  }

  void decorate() {
    const int index = addDecoration();
    wrap(elements::Decorated{index});
  }
  int addDecoration() {
    self.result_.decorations.push_back({view, &node.modifier, self.path_});
    return static_cast<int>(self.result_.decorations.size()) - 1;
  }

  graphics::RGBA drawn(const Color& color) const {
    Look look;
    look.color = &color;
    return look.drawnColor(self.environment_);
  }
};

void Evaluator::collect(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
                        Elements& out) {
  Look inner = look;
  std::visit(Modifying{*this, node, view, inner, axis, out}, node.modifier);
}

}  // namespace quorix::swiftui
