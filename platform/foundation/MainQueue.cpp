#include "platform/foundation/MainQueue.h"

#include <deque>
#include <mutex>
#include <utility>

namespace quorix::foundation {
namespace {

struct Queue {
  std::mutex mutex;
  std::deque<MainQueue::Work> waiting;
  MainQueue::Executor executor;
};

// Never destroyed: other threads may still enqueue while the process ends.
Queue& queue() {
  static Queue& instance = *new Queue;
  return instance;
}

}  // namespace

void MainQueue::async(Work work) {
  Queue& q = queue();
  std::unique_lock lock(q.mutex);
  if (q.executor) {
    const Executor executor = q.executor;
    lock.unlock();
    executor(std::move(work));
  } else {
    q.waiting.push_back(std::move(work));
  }
}

void MainQueue::install(Executor executor) {
  Queue& q = queue();
  const std::scoped_lock lock(q.mutex);
  q.executor = std::move(executor);
  if (!q.executor) return;
  for (Work& work : q.waiting) q.executor(std::move(work));
  q.waiting.clear();
}

int MainQueue::drain() {
  Queue& q = queue();
  for (int count = 0;; ++count) {
    std::unique_lock lock(q.mutex);
    if (q.waiting.empty()) return count;
    const Work work = std::move(q.waiting.front());
    q.waiting.pop_front();
    lock.unlock();
    work();
  }
}

}  // namespace quorix::foundation
