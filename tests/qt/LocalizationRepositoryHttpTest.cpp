#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "qt/QtMainQueue.h"
#include "qt/QtURLTransport.h"
#include "tests/qt/LoopbackServer.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

using foundation::URL;
using qt::QtURLTransport;

/// Asks the test's server, and tells when a request and its completion have ended, on any thread.
struct WatchedTransport final : foundation::URLTransport {
  explicit WatchedTransport(std::string server) : server_(std::move(server)) {}

  void start(const URL& url, Completion completion) override {
    network_.start(URL::parse(server_ + url.path()).value(),
                   [this, completion = std::move(completion)](auto response) {
                     completion(std::move(response));
                     done.release();
                   });
  }

  std::binary_semaphore done{0};

 private:
  const std::string server_;
  QtURLTransport network_;
};

TEST(ConcurrentLocalizationRepository, LargeTableNeedsTheMainThreadOnlyToTakeItsPlace) {
  constexpr std::size_t kSize = 250 << 10;
  qt::QtMainQueue::install();
  LoopbackServer server;
  server.serve("/translations/score/overlay/en.json",
               {httpAnswer(200, R"({"labels":{"hint":")" + std::string(kSize, 'x') + R"("}})")});
  const auto transport = std::make_shared<WatchedTransport>(server.base());
  foundation::URLSession::shared().install(transport);
  const auto repository = LocalizationRepository::make("en");
  const auto hint = [&] { return repository->strings.get()->text("labels", "hint"); };
  std::vector<std::thread::id> changes;
  const auto token =
      repository->onWillChange([&changes] { changes.push_back(std::this_thread::get_id()); });
  repository->update();
  // Fetched and parsed, without a turn of this thread.
  ASSERT_TRUE(transport->done.try_acquire_for(std::chrono::seconds(30)));
  EXPECT_TRUE(changes.empty());
  EXPECT_EQ(hint(), "Tap to learn more");
  bool caughtUp = false;  // takes the main thread's turns up to here, and none that these lead to
  foundation::MainQueue::async([&] { caughtUp = true; });
  ASSERT_TRUE(waitUntil([&] { return caughtUp; }));
  EXPECT_EQ(changes, std::vector{std::this_thread::get_id()});
  EXPECT_EQ(hint().size(), kSize);
  foundation::URLSession::shared().install(std::make_shared<QtURLTransport>());
}

}  // namespace
}  // namespace quorix::testing
