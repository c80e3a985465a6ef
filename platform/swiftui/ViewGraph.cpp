#include "platform/swiftui/ViewGraph.h"

#include <algorithm>
#include <utility>

#include "platform/foundation/MainQueue.h"

namespace quorix::swiftui {

ViewGraph::ViewGraph(std::function<void()> onInvalidate)
    : self_(std::make_shared<ViewGraph*>(this)),
      store_([graph = std::weak_ptr(self_)] {
        if (const auto self = graph.lock()) (*self)->invalidate();
      }),
      onInvalidate_(std::move(onInvalidate)) {}

ViewGraph::~ViewGraph() = default;

void ViewGraph::setRoot(View root) {
  if (root.node() == root_.node()) return;
  root_ = std::move(root);
  store_.clear();
  subscriptions_.clear();
  runningTasks_.clear();
}

void ViewGraph::setOnScreen(bool onScreen) {
  if (onScreen_ == onScreen) return;
  onScreen_ = onScreen;
  subscriptions_.clear();
  runningTasks_.clear();
}

std::unique_ptr<Evaluation> ViewGraph::evaluate(const Environment& environment) {
  turnPending_ = false;
  auto evaluation = swiftui::evaluate(root_, environment, store_);
  if (onScreen_) {
    subscriptions_.clear();
    subscriptions_.reserve(evaluation->observed.size());
    for (combine::ObservableObject* object : evaluation->observed) {
      subscriptions_.push_back(object->onWillChange([this] { invalidate(); }));
    }
    startTasks(evaluation->tasks);
  }
  return evaluation;
}

bool ViewGraph::settle() {
  if (!std::exchange(turnPending_, false)) return false;
  onInvalidate_();
  return true;
}

void ViewGraph::invalidate() {
  if (std::exchange(turnPending_, true)) return;
  foundation::MainQueue::async([graph = std::weak_ptr(self_)] {
    if (const auto self = graph.lock()) (*self)->settle();
  });
}

void ViewGraph::startTasks(std::span<const TaskRequest> requests) {
  RunningTasks running;
  running.reserve(requests.size());
  for (const TaskRequest& request : requests) {
    const auto found =
        std::ranges::find(runningTasks_, request.path, &RunningTasks::value_type::first);
    if (found != runningTasks_.end()) {
      running.push_back(std::move(*found));
      continue;
    }
    auto token = std::make_shared<bool>();
    foundation::MainQueue::async([alive = std::weak_ptr(token), action = request.action] {
      if (alive.lock()) action();
    });
    running.emplace_back(request.path, std::move(token));
  }
  runningTasks_ = std::move(running);
}

}  // namespace quorix::swiftui
