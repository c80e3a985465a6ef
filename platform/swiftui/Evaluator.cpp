#include "platform/swiftui/Evaluator.h"

namespace quorix::swiftui {

void Evaluator::collectAll(std::span<const View> children, const Look& look, ElementList& out) {
  char32_t step = steps::firstChild;
  for (const View& child : children) {
    at(step++, [&] { collect(child, look, out); });
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

Element* Evaluator::single(const View& view, const Look& look) {
  ElementList collected;
  collect(view, look, collected);
  return collected.count == 1 ? collected.first : stacked(Stack::column(), collected);
}

std::unique_ptr<Evaluation> evaluate(const View& root, const Environment& environment,
                                     StateStore& store) {
  auto evaluation = std::make_unique<Evaluation>();
  const foundation::Arena::Scope scope(evaluation->arena());
  Evaluator in(environment, store, *evaluation);
  store.beginEvaluation();
  evaluation->root = in.single(*in.make<View>(root), {});
  store.endEvaluation();
  return evaluation;
}

}  // namespace quorix::swiftui
