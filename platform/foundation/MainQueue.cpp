#include "platform/foundation/MainQueue.h"

#include <cstddef>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/foundation/Runtime.h"

namespace quorix::foundation {

struct MainQueueState {
  std::mutex mutex;
  std::deque<MainQueue::Work> waiting;
  MainQueue::Executor executor;
  MainQueue::Timer timer;
};

namespace {

/// Runs the next piece of work; false when there is none.
bool runNext() {
  auto& q = Runtime::the<MainQueueState>();
  std::unique_lock lock(q.mutex);
  if (q.waiting.empty()) return false;
  const MainQueue::Work work = std::move(q.waiting.front());
  q.waiting.pop_front();
  lock.unlock();
  work();
  return true;
}

}  // namespace

void MainQueue::async(Work work) {
  auto& q = Runtime::the<MainQueueState>();
  std::unique_lock lock(q.mutex);
  q.waiting.push_back(std::move(work));
  const Executor executor = q.executor;
  lock.unlock();
  if (executor) executor(runNext);
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
  std::unique_lock lock(q.mutex);
  q.executor = executor;
  q.timer = std::move(timer);
  const std::size_t waiting = q.waiting.size();
  lock.unlock();
  for (std::size_t turn = 0; executor && turn < waiting; ++turn) executor(runNext);
}

int MainQueue::drain() {
  int count = 0;
  while (runNext()) ++count;
  return count;
}

void asyncOnNewThread(const std::function<void()>& work) {
  try {
    std::thread(work).detach();
  } catch (const std::system_error&) {
    work();
  }
}

}  // namespace quorix::foundation
