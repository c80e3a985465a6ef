#pragma once

#include <memory>
#include <memory_resource>
#include <optional>
#include <vector>

#include "platform/combine/ObservableObject.h"
#include "platform/foundation/Action.h"
#include "platform/foundation/Arena.h"
#include "platform/render/HostedContent.h"
#include "platform/swiftui/Environment.h"
#include "platform/swiftui/Node.h"
#include "platform/swiftui/Presentation.h"
#include "platform/swiftui/PresentationDetent.h"
#include "platform/swiftui/StateStore.h"
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

}  // namespace quorix::swiftui
