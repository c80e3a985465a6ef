#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <tuple>
#include <typeinfo>
#include <utility>

#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The node of a view or modifier with a body.
class QUORIX_EXPORT Component : public Node {
 public:
  void print(TreePrinter& to, int depth) const final;
  void evaluate(Evaluator& in, const Look& look, ElementList& out) const final;

 protected:
  virtual std::string_view name() const = 0;
  virtual bool isModifier() const = 0;
  /// The path step into the body; each type has its own.
  virtual char32_t step() const = 0;
  /// The body with the states bound to `states`. The first call creates the storage in `states`.
  virtual View body(StateSlots& states) const = 0;
  /// Calls `visit` with the objects whose changes re-evaluate the body.
  virtual void visitObserved(
      const std::function<void(combine::ObservableObject&)>& visit) const = 0;
};

namespace detail {

/// Gives `state` its storage and creates it on the first call. Returns the slot of the next state.
template <class T>
std::shared_ptr<Kept>& bindState(const State<T>& state, std::shared_ptr<Kept>& slot,
                                 const foundation::Action& onChange) {
  if (!slot) slot = std::make_shared<StateBox<T>>(state.get(), onChange);
  state.adopt(std::static_pointer_cast<StateBox<T>>(slot));
  return slot->next;
}

template <class V>
void bindStates(const V& value, StateSlots& states) {
  if constexpr (requires { value.states(); }) {
    std::apply(
        [&](const auto&... state) {
          std::shared_ptr<Kept>* slot = &states.first;
          ((slot = &bindState(state, *slot, *states.onChange)), ...);
        },
        value.states());
  }
}

/// Common base of views and modifiers with a body.
template <class V>
class ComponentOf : public Component {
 public:
  explicit ComponentOf(V value) : value_(std::move(value)) {}

  std::string_view name() const final { return V::typeName; }
  char32_t step() const final {
    static const char32_t own = steps::into(typeid(V));
    return own;
  }
  void visitObserved(const std::function<void(combine::ObservableObject&)>& visit) const final {
    if constexpr (requires { value_.observed(); }) {
      std::apply([&](const auto&... object) { (visit(*object), ...); }, value_.observed());
    }
  }

 protected:
  /// A copy of the value with its states bound to `states`.
  V bound(StateSlots& states) const {
    V copy = value_;
    bindStates(copy, states);
    return copy;
  }

 private:
  V value_;
};

template <class V>
class ViewComponent final : public ComponentOf<V> {
 public:
  using ComponentOf<V>::ComponentOf;
  bool isModifier() const override { return false; }
  View body(StateSlots& states) const override { return this->bound(states).body(); }
};

template <class M>
class ModifierComponent final : public ComponentOf<M> {
 public:
  ModifierComponent(M value, View content)
      : ComponentOf<M>(std::move(value)), content_(std::move(content)) {}
  bool isModifier() const override { return true; }
  View body(StateSlots& states) const override { return this->bound(states).body(content_); }

 private:
  View content_;
};

}  // namespace detail

template <HasBody V>
View::View(V component) : View(makeView<detail::ViewComponent<V>>(std::move(component))) {}

template <ViewModifier M>
View View::modifier(M modifier) const {
  return makeView<detail::ModifierComponent<M>>(std::move(modifier), *this);
}

}  // namespace quorix::swiftui
