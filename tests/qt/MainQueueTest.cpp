#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstdlib>
#include <thread>
#include <vector>

#include "platform/foundation/MainQueue.h"
#include "qt/Engine.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

using foundation::MainQueue;

class ConcurrentMainQueue : public ::testing::Test {
 protected:
  ConcurrentMainQueue() { qt::installEngine(); }
};

TEST_F(ConcurrentMainQueue, RunsTheWorkOfEveryThreadOnTheMainOneInOrder) {
  constexpr int kEach = 500;
  std::vector<int> next(4);  // on the main thread only
  int ran = 0;
  std::vector<std::thread> threads;
  for (int& mine : next) {
    threads.emplace_back([&mine, &ran, main = std::this_thread::get_id()] {
      for (int i = 0; i < kEach; ++i) {
        MainQueue::async([&mine, &ran, i, main] {
          EXPECT_EQ(std::this_thread::get_id(), main);
          EXPECT_EQ(i, mine++);
          ++ran;
        });
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(ran, 0) << "work ran before the main thread took a turn";
  EXPECT_TRUE(waitUntil([&] { return ran == 4 * kEach; }));
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

// Ends the application, so it needs its own process.
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
