#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/combine/ObservableObject.h"
#include "platform/swiftui/Evaluator.h"

namespace quorix::swiftui {

/// Manages one view tree on a surface: its states, its subscriptions and tasks while it is on
/// screen, and the pending turn that evaluates it again. Main thread.
class ViewGraph {
 public:
  /// `onInvalidate` runs on a turn of the main queue after a change of states or observed objects.
  explicit ViewGraph(std::function<void()> onInvalidate);
  ~ViewGraph();
  ViewGraph(const ViewGraph&) = delete;
  ViewGraph& operator=(const ViewGraph&) = delete;

  /// Shows another view. Ends the states and tasks of the former one.
  void setRoot(View root);
  /// Updates the values of the same view. States and tasks continue.
  void updateRoot(View root) { root_ = std::move(root); }

  /// Off screen, subscriptions and tasks end. After a return, the next evaluation starts them
  /// again.
  void setOnScreen(bool onScreen);
  bool isOnScreen() const { return onScreen_; }

  std::unique_ptr<Evaluation> evaluate(const Environment& environment);

  /// Expires with the graph.
  std::weak_ptr<const void> life() const { return self_; }

  /// Runs a pending turn at once. Returns whether there was one.
  bool settle();

 private:
  using RunningTasks = std::vector<std::pair<TreePath, std::shared_ptr<void>>>;

  void invalidate();
  void startTasks(std::span<const TaskRequest> requests);

  std::shared_ptr<ViewGraph*> self_;  ///< bindings and turns may outlive the graph
  View root_;
  StateStore store_;
  std::function<void()> onInvalidate_;
  std::vector<combine::Cancellable> subscriptions_;
  RunningTasks runningTasks_;
  bool onScreen_ = false;
  bool turnPending_ = false;
};

}  // namespace quorix::swiftui
