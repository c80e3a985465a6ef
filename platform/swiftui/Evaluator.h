#pragma once

#include <memory>
#include <span>
#include <utility>

#include "platform/foundation/Arena.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Evaluation.h"
#include "platform/swiftui/Look.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/Stack.h"
#include "platform/swiftui/StateStore.h"

namespace quorix::swiftui {

/// One evaluation of a view tree: goes down through its nodes and bodies and collects the elements
/// that they stand for, and what they ask of their host. Main thread.
class Evaluator {
 public:
  Evaluator(const Environment& settings, StateStore& store, Evaluation& result)
      : environment(settings), store_(store), result_(result), path_(result.arena().resource()) {}

  void run(const View& root);

  const Environment& environment;
  Evaluation& result() { return result_; }
  const TreePath& path() const { return path_; }

  /// An object of this evaluation.
  template <class T, class... Arguments>
  T* make(Arguments&&... arguments) {
    return result_.arena().make<T>(std::forward<Arguments>(arguments)...);
  }

  /// Appends everything that `view` stands for. The view outlives the evaluation's elements.
  void collect(const View& view, const Look& look, layout::Axis axis, ElementList& out) {
    view.node()->evaluate(*this, look, axis, out);
  }
  /// The same for a view that was made by this evaluation, which keeps it.
  void collectMade(View view, const Look& look, layout::Axis axis, ElementList& out) {
    collect(*make<View>(std::move(view)), look, axis, out);
  }

  /// Collects `content` and appends to `out` what `wrap` makes of each of its elements.
  template <class Wrap>
  void wrapEach(const View& content, const Look& look, layout::Axis axis, ElementList& out,
                Wrap wrap) {
    ElementList inner;
    collect(content, look, axis, inner);
    for (Element* element = inner.first; element;) {
      Element* wrapped = std::exchange(element, element->next);
      wrapped->next = nullptr;
      out.append(wrap(*wrapped));
    }
  }

  /// Makes `child` the last of the element's children.
  static void adopt(Element& parent, Element* child) {
    parent.children.append(child);
    parent.holdsText = parent.holdsText || child->holdsText;
  }

  /// Appends everything that `children` stand for, each in a place of its own.
  void collectAll(std::span<const View> children, const Look& look, layout::Axis axis,
                  ElementList& out);

  /// A stack of `children`.
  Element* stacked(const Stack& rules, ElementList children);

  /// The one element that `view` stands for; several are stacked.
  Element* single(const View& view, const Look& look, layout::Axis axis);

  /// Goes on one step further in the tree.
  template <class Go>
  void at(char32_t step, Go go) {
    path_.push_back(step);
    go();
    path_.pop_back();
  }

  /// What is kept for the present place from one evaluation to the next.
  StateSlots& states() { return store_.states(path_); }

 private:
  StateStore& store_;
  Evaluation& result_;
  TreePath path_;
};

}  // namespace quorix::swiftui
