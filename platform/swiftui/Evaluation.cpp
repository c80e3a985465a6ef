#include "platform/swiftui/Evaluation.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

#include "platform/foundation/TextCasing.h"
#include "platform/graphics/AssetCatalog.h"
#include "platform/layout/StackDistribution.h"
#include "platform/swiftui/Component.h"

namespace quorix::swiftui {
namespace {

using layout::Axis;
using layout::Element;
namespace elements = layout::elements;

constexpr graphics::RGBA clear = {0, 0, 0, 0};

/// The platform's hairline colour.
graphics::RGBA separatorColor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{84, 84, 88, 153}
                                                  : graphics::RGBA{60, 60, 67, 74};
}

/// What reaches down to descendants. Each modifier overwrites what came from further out.
struct Look {
  const Font* font = nullptr;
  const Color* color = nullptr;
  std::optional<TextCase> textCase;
  bool underline = false;
  bool strikethrough = false;
  bool resizable = false;
  bool inColumn = false;  ///< the nearest stack is vertical
};

class Evaluator {
 public:
  Evaluator(const Environment& environment, StateStore& store)
      : environment_(environment), store_(store) {}

  Evaluation run(const View& root) {
    store_.beginEvaluation();
    result_.root = single(root, {}, Axis::vertical);
    store_.endEvaluation();
    return std::move(result_);
  }

 private:
  using Elements = std::vector<Element>;
  struct Modifying;

  /// Everything that `view` stands for, as children of a stack along `axis`.
  void collect(const View& view, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Empty&, const View&, const Look&, Axis, Elements&) {}
  void collect(const nodes::Text& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Image& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Represented& node, const View&, const Look&, Axis, Elements& out);
  void collect(const nodes::Spacer& node, const View&, const Look&, Axis axis, Elements& out);
  void collect(const nodes::Divider&, const View&, const Look&, Axis axis, Elements& out);
  void collect(const nodes::Stack& node, const View&, const Look& look, Axis, Elements& out);
  void collect(const nodes::Group& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Conditional& node, const View&, const Look& look, Axis axis,
               Elements& out);
  void collect(const nodes::Lazy& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Custom& node, const View&, const Look& look, Axis axis, Elements& out);
  void collect(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
               Elements& out);
  void collectChildren(const std::vector<View>& children, const Look& look, Axis axis,
                       Elements& out);

  /// The one element that `view` stands for; several are stacked.
  Element single(const View& view, const Look& look, Axis axis);

  /// Applies a modifier that changes the layout or is a decoration to each element of its content.
  template <class Kind>
  void wrap(const nodes::Modified& node, const Look& look, Axis axis, Elements& out,
            const Kind& kind);
  void decorate(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
                Elements& out);

  /// Goes on one step further in the tree.
  template <class Go>
  void at(char32_t step, Go go) {
    path_.push_back(step);
    go();
    path_.pop_back();
  }

  graphics::RGBA resolved(const Look& look) const;
  text::AttributedText attributed(const Text& text, const Look& look) const;

  const Environment& environment_;
  StateStore& store_;
  Evaluation result_;
  TreePath path_;
};

void Evaluator::collect(const View& view, const Look& look, Axis axis, Elements& out) {
  std::visit([&](const auto& node) { collect(node, view, look, axis, out); }, view.node()->kind);
}

void Evaluator::collect(const nodes::Text& node, const View&, const Look& look, Axis,
                        Elements& out) {
  out.push_back({elements::Text{attributed(node.text, look), look.inColumn}, {}, {}, {}});
}

void Evaluator::collect(const nodes::Image& node, const View&, const Look& look, Axis,
                        Elements& out) {
  const auto& bundle = node.bundle ? node.bundle : foundation::Bundle::main();
  const auto asset = graphics::imageSet(bundle, node.name);
  // An unknown image shows nothing, but what is around it keeps its size.
  const layout::Size size = asset ? layout::Size{asset->width, asset->height} : layout::Size{};
  out.push_back(
      {elements::Image{node.name, bundle, size, look.resizable, resolved(look)}, {}, {}, {}});
}

void Evaluator::collect(const nodes::Represented& node, const View&, const Look&, Axis,
                        Elements& out) {
  using Content = std::shared_ptr<render::HostedContent>;
  path_.push_back(steps::represented);
  auto& boxes = store_.states(path_).boxes;
  path_.pop_back();
  if (boxes.empty()) boxes.emplace_back(node.make());
  const Content& content = std::any_cast<const Content&>(boxes.front());
  out.push_back(
      {elements::Hosted{static_cast<int>(result_.hosted.size()), content.get()}, {}, {}, {}});
  result_.hosted.push_back(content);
}

void Evaluator::collect(const nodes::Spacer& node, const View&, const Look&, Axis axis,
                        Elements& out) {
  out.push_back(
      {elements::Spacer{axis, node.minLength.value_or(layout::defaultSpacing)}, {}, {}, {}});
}

void Evaluator::collect(const nodes::Divider&, const View&, const Look&, Axis axis, Elements& out) {
  out.push_back({elements::Divider{axis, separatorColor(environment_.appearance)}, {}, {}, {}});
}

void Evaluator::collect(const nodes::Stack& node, const View&, const Look& look, Axis,
                        Elements& out) {
  Element stack = {
      elements::Stack{node.axis, node.alignment, node.spacing.value_or(layout::defaultSpacing)},
      {},
      {},
      {}};
  Look inner = look;
  inner.inColumn = node.axis == Axis::vertical;
  collectChildren(node.children, inner, node.axis, stack.children);
  out.push_back(std::move(stack));
}

void Evaluator::collect(const nodes::Group& node, const View&, const Look& look, Axis axis,
                        Elements& out) {
  collectChildren(node.children, look, axis, out);
}

void Evaluator::collect(const nodes::Conditional& node, const View&, const Look& look, Axis axis,
                        Elements& out) {
  at(node.condition ? steps::chosen : steps::notChosen,
     [&] { collect(node.content, look, axis, out); });
}

void Evaluator::collect(const nodes::Lazy& node, const View&, const Look& look, Axis axis,
                        Elements& out) {
  collect(node.make(), look, axis, out);
}

void Evaluator::collect(const nodes::Custom& node, const View&, const Look& look, Axis axis,
                        Elements& out) {
  node.component->visitObserved([&](combine::ObservableObject& object) {
    auto& observed = result_.observed;
    if (std::find(observed.begin(), observed.end(), &object) == observed.end()) {
      observed.push_back(&object);
    }
  });
  const Component& component = *node.component;
  at(steps::into(typeid(component)),
     [&] { collect(component.body(store_.states(path_)), look, axis, out); });
}

void Evaluator::collectChildren(const std::vector<View>& children, const Look& look, Axis axis,
                                Elements& out) {
  char32_t step = steps::firstChild;
  for (const View& child : children) {
    at(step++, [&] { collect(child, look, axis, out); });
  }
}

/// Takes a modifier's part in the evaluation and goes on with its content.
struct Evaluator::Modifying {
  Evaluator& self;
  const nodes::Modified& node;
  const View& view;
  Look& inner;
  Axis axis;
  Elements& out;

  void operator()(const modifiers::Case& m) { inner.textCase = m.value, descend(); }
  void operator()(const modifiers::Underline& m) { inner.underline = m.active, descend(); }
  void operator()(const modifiers::Strikethrough& m) {
    inner.strikethrough = m.active;
    descend();
  }
  void operator()(const modifiers::FontChoice& m) { inner.font = &m.font, descend(); }
  void operator()(const modifiers::ForegroundColor& m) { inner.color = &m.color, descend(); }
  void operator()(const modifiers::Resizable&) { inner.resizable = true, descend(); }
  void operator()(const modifiers::Padding& m) { wrap(elements::Padding{m.insets}); }
  void operator()(const modifiers::FixedFrame& m) {
    wrap(elements::FixedFrame{m.width, m.height, m.alignment});
  }
  void operator()(const modifiers::MaxWidthFrame& m) { wrap(elements::MaxWidthFrame{m.alignment}); }
  void operator()(const modifiers::FixedSize& m) {
    wrap(elements::FixedSize{m.horizontal, m.vertical});
  }
  void operator()(const modifiers::Overlay& m) {
    const std::size_t first = out.size();
    self.at(steps::modified, [&] { wrap(elements::Overlay{m.alignment}); });
    char32_t step = steps::firstOverlay;
    for (std::size_t i = first; i < out.size(); ++i) {
      self.at(step++, [&] { out[i].children.push_back(self.single(m.content, inner, axis)); });
    }
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
    self.at(steps::modified, [&] { self.decorate(node, view, inner, axis, out); });
  }
  void operator()(const auto&) { self.decorate(node, view, inner, axis, out); }

  void descend() { self.collect(node.content, inner, axis, out); }

  template <class Kind>
  void wrap(const Kind& kind) {
    self.wrap(node, inner, axis, out, kind);
  }
};

void Evaluator::collect(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
                        Elements& out) {
  Look inner = look;
  std::visit(Modifying{*this, node, view, inner, axis, out}, node.modifier);
}

template <class Kind>
void Evaluator::wrap(const nodes::Modified& node, const Look& look, Axis axis, Elements& out,
                     const Kind& kind) {
  const std::size_t first = out.size();
  collect(node.content, look, axis, out);
  for (std::size_t i = first; i < out.size(); ++i) {
    Element wrapped = {kind, {}, {}, {}};
    wrapped.children.push_back(std::move(out[i]));
    out[i] = std::move(wrapped);
  }
}

void Evaluator::decorate(const nodes::Modified& node, const View& view, const Look& look, Axis axis,
                         Elements& out) {
  const auto index = static_cast<int>(result_.decorations.size());
  result_.decorations.push_back({view, &node.modifier, path_});
  wrap(node, look, axis, out, elements::Decorated{index});
}

Element Evaluator::single(const View& view, const Look& look, Axis axis) {
  Elements collected;
  collect(view, look, axis, collected);
  if (collected.empty()) return {};
  if (collected.size() == 1) return std::move(collected.front());
  return {
      elements::Stack{Axis::vertical, {}, layout::defaultSpacing}, std::move(collected), {}, {}};
}

graphics::RGBA Evaluator::resolved(const Look& look) const {
  if (look.color) return look.color->resolve(environment_.appearance).value_or(clear);
  const bool dark = environment_.appearance == graphics::Appearance::dark;
  return dark ? graphics::RGBA{255, 255, 255, 255} : graphics::RGBA{0, 0, 0, 255};
}

text::AttributedText Evaluator::attributed(const Text& text, const Look& look) const {
  static const Font systemFont;
  const Font& font = look.font ? *look.font : systemFont;
  const double scaling = font.scales() ? scaleFactor(font.textStyle(), environment_.textSize) : 1;
  std::string shown = text.resolved();
  if (look.textCase == TextCase::uppercase) {
    shown = foundation::uppercased(shown, environment_.language);
  } else if (look.textCase == TextCase::lowercase) {
    shown = foundation::lowercased(shown, environment_.language);
  }
  text::AttributedText result;
  result.direction = environment_.direction;
  result.runs.push_back({std::move(shown),
                         {font.name(), font.size() * scaling, font.weight()},
                         resolved(look),
                         look.underline,
                         look.strikethrough});
  return result;
}

}  // namespace

Evaluation evaluate(const View& root, const Environment& environment, StateStore& store) {
  return Evaluator(environment, store).run(root);
}

}  // namespace quorix::swiftui
