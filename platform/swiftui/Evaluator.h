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

/// The result of one evaluation of a view tree: the elements to lay out, and the requests to the
/// `ViewHost`. All of it lives in one arena and is destroyed with the evaluation.
class Evaluation {
  foundation::Arena::Lease arena_ = foundation::Arena::lease();  // first member: destroyed last

 public:
  Evaluation() = default;
  Evaluation(const Evaluation&) = delete;
  Evaluation& operator=(const Evaluation&) = delete;

  foundation::Arena& arena() { return *arena_; }

  Element* root = nullptr;
  std::pmr::vector<std::shared_ptr<render::HostedContent>> hosted{arena_->resource()};
  std::pmr::vector<TaskRequest> tasks{arena_->resource()};
  std::pmr::vector<combine::ObservableObject*> observed{arena_->resource()};
  std::optional<Presentation> presentation;
  PresentationDetents detents;
  // Upper bounds for the size of the display list.
  std::size_t items = 0;
  std::size_t hitAreas = 0;
};

/// Evaluates `root` and every body below it, with the states in `store`.
std::unique_ptr<Evaluation> evaluate(const View& root, const Environment& environment,
                                     StateStore& store);

/// Runs one evaluation of a view tree: visits its nodes and bodies, and collects their elements and
/// their requests to the `ViewHost`. Main thread.
class Evaluator {
 public:
  Evaluator(const Environment& settings, StateStore& store, Evaluation& result)
      : environment(settings), store_(store), result_(result), path_(result.arena().resource()) {}

  const Environment& environment;
  Evaluation& result() { return result_; }
  const TreePath& path() const { return path_; }

  /// Makes an object that lives as long as the evaluation.
  template <class T, class... Arguments>
  T* make(Arguments&&... arguments) {
    return result_.arena().make<T>(std::forward<Arguments>(arguments)...);
  }

  /// Appends the elements of `view`. The view must outlive the evaluation's elements.
  void collect(const View& view, const Look& look, ElementList& out) {
    view.node()->evaluate(*this, look, out);
  }
  /// Appends the elements of a view that this evaluation made, and keeps the view.
  void collectMade(View view, const Look& look, ElementList& out) {
    collect(*make<View>(std::move(view)), look, out);
  }

  /// Wraps each element of `content` in a `Wrapper(arguments...)`, passes that to `adapt`, and
  /// appends it to `out`.
  template <class Wrapper, class Adapt, class... Arguments>
  void wrapEach(const View& content, const Look& look, ElementList& out, Adapt adapt,
                const Arguments&... arguments) {
    ElementList inner;
    collect(content, look, inner);
    for (Element* element = inner.first; element;) {
      Element* wrapped = std::exchange(element, element->next);
      wrapped->next = nullptr;
      auto* wrapper = make<Wrapper>(arguments...);
      adopt(*wrapper, wrapped);
      adapt(*wrapper);
      out.append(wrapper);
    }
  }

  /// Appends `child` to the children of `parent`.
  static void adopt(Element& parent, Element* child) {
    parent.children.append(child);
    parent.holdsText = parent.holdsText || child->holdsText;
  }

  /// Appends the elements of `children`; each child has its own place in the tree.
  void collectAll(std::span<const View> children, const Look& look, ElementList& out);

  /// Makes a stack of `children`.
  Element* stacked(const Stack& rules, ElementList children);

  /// The element of `view`. Several elements are put into a stack.
  Element* single(const View& view, const Look& look);

  /// Runs `go` with `step` appended to the path.
  template <class Go>
  void at(char32_t step, Go go) {
    path_.push_back(step);
    go();
    path_.pop_back();
  }

  /// The states of the current place, which survive from one evaluation to the next.
  StateSlots& states() { return store_.states(path_); }

 private:
  StateStore& store_;
  Evaluation& result_;
  TreePath path_;
};

}  // namespace quorix::swiftui
