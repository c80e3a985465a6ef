#pragma once

#include <any>
#include <functional>
#include <memory>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

/// The storage of one component's states, kept by the graph under the component's place in the
/// tree.
struct StateSlots {
  std::vector<std::any> boxes;
  std::function<void()> onChange;
};

/// A view or modifier of the library's own, behind the node that holds it.
class QUORIX_EXPORT Component {
 public:
  virtual ~Component() = default;
  virtual std::string_view name() const = 0;
  virtual bool isModifier() const = 0;
  /// The body, with the states bound to `states`, which the first call fills.
  virtual View body(StateSlots& states) const = 0;
  /// Visits the objects whose changes re-evaluate the body.
  virtual void visitObserved(
      const std::function<void(combine::ObservableObject&)>& visit) const = 0;
};

namespace detail {

template <class T>
void bind(const State<T>& state, std::size_t index, StateSlots& states) {
  using Box = std::shared_ptr<StateBox<T>>;
  if (index == states.boxes.size()) {
    auto box = std::make_shared<StateBox<T>>(StateBox<T>{state.get(), states.onChange});
    states.boxes.emplace_back(std::move(box));
  }
  state.adopt(std::any_cast<const Box&>(states.boxes[index]));
}

template <class V>
void bindStates(const V& value, StateSlots& states) {
  if constexpr (requires { value.states(); }) {
    std::apply(
        [&](const auto&... state) {
          std::size_t index = 0;
          (bind(state, index++, states), ...);
        },
        value.states());
  }
}

template <class V>
void visitObserved(const V& value, const std::function<void(combine::ObservableObject&)>& visit) {
  if constexpr (requires { value.observed(); }) {
    std::apply([&](const auto&... object) { (visit(*object), ...); }, value.observed());
  }
}

template <class V>
class ViewComponent final : public Component {
 public:
  explicit ViewComponent(V value) : value_(std::move(value)) {}
  std::string_view name() const override { return V::typeName; }
  bool isModifier() const override { return false; }
  View body(StateSlots& states) const override {
    const V bound = value_;
    bindStates(bound, states);
    return bound.body();
  }
  void visitObserved(const std::function<void(combine::ObservableObject&)>& visit) const override {
    detail::visitObserved(value_, visit);
  }

 private:
  V value_;
};

template <class M>
class ModifierComponent final : public Component {
 public:
  ModifierComponent(M value, View content)
      : value_(std::move(value)), content_(std::move(content)) {}
  std::string_view name() const override { return M::typeName; }
  bool isModifier() const override { return true; }
  View body(StateSlots& states) const override {
    const M bound = value_;
    bindStates(bound, states);
    return bound.body(content_);
  }
  void visitObserved(const std::function<void(combine::ObservableObject&)>& visit) const override {
    detail::visitObserved(value_, visit);
  }

 private:
  M value_;
  View content_;
};

}  // namespace detail

template <HasBody V>
View::View(V component)
    : View(std::shared_ptr<const Component>(
          std::make_shared<detail::ViewComponent<V>>(std::move(component)))) {}

template <ViewModifier M>
View View::modifier(M modifier) const {
  return View(std::shared_ptr<const Component>(
      std::make_shared<detail::ModifierComponent<M>>(std::move(modifier), *this)));
}

}  // namespace quorix::swiftui
