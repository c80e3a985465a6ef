#include "platform/foundation/MainQueue.h"

#include <deque>
#include <mutex>
#include <utility>

#include "platform/foundation/Runtime.h"

namespace quorix::foundation {

struct MainQueueState {
  std::mutex mutex;
  std::deque<MainQueue::Work> waiting;
  MainQueue::Executor executor;
  MainQueue::Timer timer;
};

void MainQueue::async(Work work) {
  auto& q = Runtime::the<MainQueueState>();
  std::unique_lock lock(q.mutex);
  if (q.executor) {
    const Executor executor = q.executor;
    lock.unlock();
    executor(std::move(work));
  } else {
    q.waiting.push_back(std::move(work));
  }
}

void MainQueue::after(std::chrono::milliseconds delay, Work work) {
  auto& q = Runtime::the<MainQueueState>();
  std::unique_lock lock(q.mutex);
  const Timer timer = q.timer;
  lock.unlock();
  if (timer) timer(delay, std::move(work));
}

void MainQueue::install(Executor executor, Timer timer) {
  auto& q = Runtime::the<MainQueueState>();
  const std::scoped_lock lock(q.mutex);
  q.executor = std::move(executor);
  q.timer = std::move(timer);
  if (!q.executor) return;
  for (Work& work : q.waiting) q.executor(std::move(work));
  q.waiting.clear();
}

int MainQueue::drain() {
  auto& q = Runtime::the<MainQueueState>();
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
