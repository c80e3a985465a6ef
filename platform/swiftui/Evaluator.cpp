#include "platform/swiftui/Evaluator.h"

namespace quorix::swiftui {

void Evaluator::run(const View& root) {
  const foundation::Arena::Scope scope(result_.arena());
  store_.beginEvaluation();
  result_.root = single(*make<View>(root), {}, layout::Axis::vertical);
  store_.endEvaluation();
}

void Evaluator::collectAll(std::span<const View> children, const Look& look, layout::Axis axis,
                           ElementList& out) {
  char32_t step = steps::firstChild;
  for (const View& child : children) {
    at(step++, [&] { collect(child, look, axis, out); });
  }
}

Element* Evaluator::stacked(const Stack& rules, ElementList children) {
  auto* stack = make<StackElement>(rules);
  stack->children = children;
  for (const Element* child = children.first; child; child = child->next) {
    stack->holdsText = stack->holdsText || child->holdsText;
  }
  return stack;
}

Element* Evaluator::single(const View& view, const Look& look, layout::Axis axis) {
  ElementList collected;
  collect(view, look, axis, collected);
  return collected.count == 1 ? collected.first : stacked(Stack::column(), collected);
}

std::unique_ptr<Evaluation> evaluate(const View& root, const Environment& environment,
                                     StateStore& store) {
  auto evaluation = std::make_unique<Evaluation>();
  Evaluator(environment, store, *evaluation).run(root);
  return evaluation;
}

}  // namespace quorix::swiftui
