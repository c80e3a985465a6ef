#pragma once

#include <memory>
#include <memory_resource>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Action.h"
#include "platform/foundation/Arena.h"
#include "platform/render/HostedContent.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Look.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/Stack.h"
#include "platform/swiftui/State.h"
#include "platform/swiftui/View.h"

namespace quorix::swiftui {

struct TaskRequest {
  TreePath path;
  foundation::Action action;
};

/// What one evaluation of a view tree's bodies gives: the elements to lay out, and everything that
/// the tree asks of its host. All of it lives in one arena and goes with the evaluation.
class Evaluation {
  foundation::Arena::Lease arena_ = foundation::Arena::lease();  // the last to go

 public:
  Evaluation() = default;

  foundation::Arena& arena() { return *arena_; }

  Element* root = nullptr;
  std::pmr::vector<std::shared_ptr<render::HostedContent>> hosted{arena_->resource()};
  std::pmr::vector<TaskRequest> tasks{arena_->resource()};
  std::pmr::vector<combine::ObservableObject*> observed{arena_->resource()};
  std::optional<Presentation> presentation;
  PresentationDetents detents;
  // How much the display list will hold, at most.
  std::size_t items = 0;
  std::size_t hitAreas = 0;
};

/// Evaluates `root` and every body below it, with the states in `store`.
std::unique_ptr<Evaluation> evaluate(const View& root, const Environment& environment,
                                     StateStore& store);

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
