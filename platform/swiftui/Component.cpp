#include "platform/swiftui/Component.h"

#include <algorithm>
#include <map>

#include "platform/swiftui/Evaluator.h"
#include "platform/swiftui/TreePrinter.h"

namespace quorix::swiftui {

char32_t steps::into(std::type_index type) {
  static std::map<std::type_index, char32_t> known;
  const auto next = firstType + static_cast<char32_t>(known.size());
  return known.try_emplace(type, next).first->second;
}

void Component::print(TreePrinter& to, int depth) const {
  const foundation::Action none;
  StateSlots states{{}, &none};
  const View shown = body(states);
  if (!isModifier()) to.line(depth, name());
  to.print(shown, isModifier() ? depth : depth + 1);
}

void Component::evaluate(Evaluator& in, const Look& look, ElementList& out) const {
  visitObserved([&](combine::ObservableObject& object) {
    auto& observed = in.result().observed;
    if (std::find(observed.begin(), observed.end(), &object) == observed.end()) {
      observed.push_back(&object);
    }
  });
  in.at(step(), [&] { in.collectMade(body(in.states()), look, out); });
}

}  // namespace quorix::swiftui
