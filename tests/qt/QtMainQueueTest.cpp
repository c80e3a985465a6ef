#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdlib>
#include <numeric>
#include <thread>
#include <utility>
#include <vector>

#include "platform/foundation/MainQueue.h"
#include "qt/QtMainQueue.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

using foundation::MainQueue;

class ConcurrentMainQueue : public ::testing::Test {
 protected:
  ConcurrentMainQueue() { qt::QtMainQueue::install(); }
};

TEST_F(ConcurrentMainQueue, RunsTheWorkOfEveryThreadOnTheMainOneInOrder) {
  constexpr int kThreads = 4;
  constexpr int kEach = 500;
  std::vector<std::pair<int, int>> ran;  // main thread only
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&ran, thread, main = std::this_thread::get_id()] {
      for (int i = 0; i < kEach; ++i) {
        MainQueue::async([&ran, thread, i, main] {
          ran.emplace_back(std::this_thread::get_id() == main ? thread : -1, i);
        });
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_TRUE(ran.empty()) << "work ran before the main thread took a turn";
  ASSERT_TRUE(waitUntil([&] { return ran.size() == kThreads * kEach; }));
  std::vector<int> next(kThreads);
  for (const auto& [thread, i] : ran) {
    ASSERT_GE(thread, 0) << "off the main thread";
    EXPECT_EQ(i, next[static_cast<std::size_t>(thread)]++);
  }
}

TEST_F(ConcurrentMainQueue, KeepsTheOrderThroughAnEventLoopInside) {
  std::vector<int> ran;
  MainQueue::async([&] {
    ran.push_back(1);
    MainQueue::async([&] { ran.push_back(3); });
    EXPECT_EQ(ran, std::vector{1}) << "not on a later turn";
    EXPECT_TRUE(waitUntil([&] { return ran.size() == 3; })) << "a modal loop starves the queue";
    ran.push_back(4);
  });
  MainQueue::async([&] { ran.push_back(2); });
  ASSERT_TRUE(waitUntil([&] { return ran.size() == 4; }));
  EXPECT_EQ(ran, (std::vector{1, 2, 3, 4}));
}

// The application's end needs a process of its own.
TEST_F(ConcurrentMainQueue, WorkOutlivesTheApplication) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        std::vector<int> ran;
        MainQueue::async([&] { ran.push_back(1); });
        delete QCoreApplication::instance();
        std::thread([&] { MainQueue::async([&] { ran.push_back(2); }); }).join();
        int argc = 0;
        for (int application = 0; application < 2; ++application) {
          QCoreApplication next(argc, nullptr);
          MainQueue::async([&, application] { ran.push_back(3 + application); });
          if (application == 1 && !waitUntil([&] { return ran.size() == 4; })) std::_Exit(2);
        }
        std::_Exit(ran == std::vector{1, 2, 3, 4} ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorix::testing
