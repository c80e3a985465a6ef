#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/localization/ServiceAddresses.h"
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

/// Tells of each request that is over and done with, on whichever thread it ends.
class WatchedTransport final : public foundation::URLTransport {
 public:
  void start(const URL& url, Completion completion) override {
    network.start(url, [done = done_, completion = std::move(completion)](auto response) {
      completion(std::move(response));
      done->release();
    });
  }

  /// Waits for one completion without a turn of this thread.
  bool completed() { return done_->try_acquire_for(std::chrono::seconds(30)); }

  QtURLTransport network;

 private:
  using Semaphore = std::counting_semaphore<>;
  std::shared_ptr<Semaphore> done_ = std::make_shared<Semaphore>(0);
};

class ConcurrentLocalizationRepository : public ::testing::Test {
 protected:
  ConcurrentLocalizationRepository() {
    qt::QtMainQueue::install();
    transport->network.redirectOrigin(modulesServiceBaseURL, server.base());
    foundation::URLSession::shared().install(transport);
  }

  ~ConcurrentLocalizationRepository() override {
    foundation::URLSession::shared().install(std::make_shared<QtURLTransport>());
  }

  /// Takes the main thread's turns up to here.
  static bool mainThreadCaughtUp() {
    bool reached = false;
    foundation::MainQueue::async([&reached] { reached = true; });
    return waitUntil([&reached] { return reached; });
  }

  static std::string hint(const LocalizationRepository& repository) {
    return std::string(repository.strings.get()->text("labels", "hint"));
  }

  LoopbackServer server;
  std::shared_ptr<WatchedTransport> transport = std::make_shared<WatchedTransport>();
};

std::string tableWithHint(const std::string& hint) {
  return R"({"labels":{"hint":")" + hint + R"("}})";
}

const std::string kPath = "/translations/score/overlay/en.json";
const std::string kBuiltIn = "Tap to learn more";

TEST_F(ConcurrentLocalizationRepository, EachAnswerReplacesTheTableOrLeavesIt) {
  const std::string remote = tableWithHint("remote");
  Answer cut{httpAnswer(200, remote), SIZE_MAX, true};
  cut.bytes.pop_back();
  const struct {
    std::string name;
    Answer answer;
    std::string hint;
  } rows[] = {
      {"dribbled table", {httpAnswer(200, remote), 3}, "remote"},
      {"table with a 404", {httpAnswer(404, remote)}, "remote"},
      {"table elsewhere", {httpAnswer(302, "", "Location: /elsewhere\r\n")}, "elsewhere"},
      {"error page", {httpAnswer(500, "<html>500</html>")}, kBuiltIn},
      {"no content", {"HTTP/1.1 204 No Content\r\n\r\n"}, kBuiltIn},
      {"cut off", cut, kBuiltIn},
  };
  server.serve("/elsewhere", {httpAnswer(200, tableWithHint("elsewhere"))});
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    server.serve(kPath, row.answer);
    const auto repository = LocalizationRepository::make("en");
    repository->update();
    ASSERT_TRUE(transport->completed());
    ASSERT_TRUE(mainThreadCaughtUp());
    EXPECT_EQ(hint(*repository), row.hint);
  }
}

TEST_F(ConcurrentLocalizationRepository, LargeTableNeedsTheMainThreadOnlyToTakeItsPlace) {
  constexpr std::size_t kSize = 50 << 20;
  server.serve(kPath, {httpAnswer(200, tableWithHint(std::string(kSize, 'x')))});
  const auto repository = LocalizationRepository::make("en");
  std::vector<std::thread::id> changes;
  const auto token =
      repository->onWillChange([&changes] { changes.push_back(std::this_thread::get_id()); });
  repository->update();
  ASSERT_TRUE(transport->completed());  // fetched and parsed
  EXPECT_TRUE(changes.empty());
  EXPECT_EQ(hint(*repository), kBuiltIn);
  ASSERT_TRUE(mainThreadCaughtUp());
  EXPECT_EQ(changes, std::vector{std::this_thread::get_id()});
  EXPECT_EQ(hint(*repository).size(), kSize);
}

}  // namespace
}  // namespace quorix::testing
