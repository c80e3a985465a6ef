#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/combine/ObservableObject.h"
#include "platform/layout/Element.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/Presentation.h"
#include "platform/swiftui/StateStore.h"

namespace quorix::swiftui {

/// A modifier that concerns input, geometry or assistive technology, with its place in the tree.
struct Decoration {
  View view;  ///< keeps `modifier` alive
  const Modifier* modifier;
  TreePath path;
};

struct TaskRequest {
  TreePath path;
  std::function<void()> action;
};

/// What one evaluation of a view tree's bodies gives: the elements to lay out, and everything that
/// the tree asks of its host.
struct Evaluation {
  layout::Element root;
  std::vector<Decoration> decorations;
  std::vector<std::shared_ptr<render::HostedContent>> hosted;
  std::vector<TaskRequest> tasks;
  std::vector<combine::ObservableObject*> observed;
  std::optional<Presentation> presentation;
  PresentationDetents detents;
};

/// Evaluates `root` and every body below it, with the states in `store`.
Evaluation evaluate(const View& root, const Environment& environment, StateStore& store);

}  // namespace quorix::swiftui
