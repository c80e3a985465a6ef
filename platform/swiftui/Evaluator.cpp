#include "platform/swiftui/Evaluator.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

#include "platform/graphics/AssetCatalog.h"
#include "platform/layout/StackDistribution.h"
#include "platform/swiftui/Component.h"

namespace quorix::swiftui {
namespace {

namespace elements = layout::elements;

/// The platform's hairline colour.
graphics::RGBA separatorColor(graphics::Appearance appearance) {
  return appearance == graphics::Appearance::dark ? graphics::RGBA{84, 84, 88, 153}
                                                  : graphics::RGBA{60, 60, 67, 74};
}

/// How far a text gives in size before a word in it breaks. What stands side by side (a price, its
/// name) is to be read whole; a paragraph is not made small for the sake of one endless word.
constexpr double smallestInRow = 0.25;
constexpr double smallestParagraph = 0.75;

}  // namespace

Evaluation Evaluator::run(const View& root) {
  store_.beginEvaluation();
  result_.root = single(root, {}, Axis::vertical);
  store_.endEvaluation();
  return std::move(result_);
}

void Evaluator::collect(const View& view, const Look& look, Axis axis, Elements& out) {
  std::visit([&](const auto& node) { collect(node, view, look, axis, out); }, view.node()->kind);
}

void Evaluator::collect(const nodes::Text& node, const View&, const Look& look, Axis,
                        Elements& out) {
  const double smallest = look.inRow ? smallestInRow : smallestParagraph;
  out.push_back({elements::Text{look.attributed(node.text, environment_), look.inColumn, smallest},
                 {},
                 {},
                 {}});
}

void Evaluator::collect(const nodes::Image& node, const View&, const Look& look, Axis,
                        Elements& out) {
  const auto& bundle = node.bundle ? node.bundle : foundation::Bundle::main();
  const auto asset = graphics::imageSet(bundle, node.name);
  // An unknown image shows nothing, but what is around it keeps its size.
  const layout::Size size = asset ? layout::Size{asset->width, asset->height} : layout::Size{};
  out.push_back(
      {elements::Image{node.name, bundle, size, look.resizable, look.drawnColor(environment_)},
       {},
       {},
       {}});
}

void Evaluator::collect(const nodes::Represented& node, const View&, const Look&, Axis,
                        Elements& out) {
  using Content = std::shared_ptr<render::HostedContent>;
  path_.push_back(steps::into(node.make.target_type()));  // another maker, other content
  auto& boxes = store_.states(path_).boxes;
  path_.pop_back();
  if (boxes.empty()) boxes.emplace_back(node.make());
  const Content content = std::any_cast<const Content&>(boxes.front());
  if (node.update) node.update(*content);
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
  inner.inRow = node.axis == Axis::horizontal;
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

layout::Element Evaluator::single(const View& view, const Look& look, Axis axis) {
  Elements collected;
  collect(view, look, axis, collected);
  if (collected.empty()) return {};
  if (collected.size() == 1) return std::move(collected.front());
  return {
      elements::Stack{Axis::vertical, {}, layout::defaultSpacing}, std::move(collected), {}, {}};
}

Evaluation evaluate(const View& root, const Environment& environment, StateStore& store) {
  return Evaluator(environment, store).run(root);
}

}  // namespace quorix::swiftui
