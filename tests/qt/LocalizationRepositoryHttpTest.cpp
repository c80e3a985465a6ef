#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
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

/// Counts the requests that are over and done with, on whichever thread they end.
class CountingTransport final : public foundation::URLTransport {
 public:
  void start(const URL& url, Completion completion) override {
    network.start(url, [done = done_, completion = std::move(completion)](auto response) {
      completion(std::move(response));
      ++*done;
    });
  }

  int done() const { return *done_; }

  QtURLTransport network;

 private:
  std::shared_ptr<std::atomic<int>> done_ = std::make_shared<std::atomic<int>>(0);
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

  static std::string pathOf(const std::string& locale) {
    return "/translations/score/overlay/" + locale + ".json";
  }

  /// Waits for `count` completions without a turn of the main thread.
  bool completed(int count) const {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (transport->done() < count) {
      if (std::chrono::steady_clock::now() > limit) return false;
      std::this_thread::yield();
    }
    return true;
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
  std::shared_ptr<CountingTransport> transport = std::make_shared<CountingTransport>();
};

std::string tableWithHint(const std::string& hint) {
  return R"({"labels":{"hint":")" + hint + R"("}})";
}

const std::string kBuiltIn = "Tap to learn more";

TEST_F(ConcurrentLocalizationRepository, EachAnswerReplacesTheTableOrLeavesIt) {
  const std::string remote = tableWithHint("remote");
  const auto whole = [](int status, const std::string& body) {
    return Answer{httpAnswer(status, body)};
  };
  Answer cut = whole(200, remote);
  cut.bytes.resize(cut.bytes.size() - 1);
  cut.hangUp = true;
  const struct {
    std::string name;
    Answer answer;
    std::string hint;
  } table[] = {
      {"table", whole(200, remote), "remote"},
      {"dribbled table", {httpAnswer(200, remote), 3}, "remote"},
      {"table with a 404", whole(404, remote), "remote"},
      {"table elsewhere", {httpAnswer(302, "", "Location: /elsewhere\r\n")}, "elsewhere"},
      {"table without the text", whole(200, R"({"returns":{"title":"t"}})"), ""},
      {"error page", whole(500, "<html>500</html>"), kBuiltIn},
      {"half a table", whole(200, remote.substr(0, remote.size() - 1)), kBuiltIn},
      {"no content", {"HTTP/1.1 204 No Content\r\n\r\n"}, kBuiltIn},
      {"cut off", cut, kBuiltIn},
  };
  server.serve("/elsewhere", {httpAnswer(200, tableWithHint("elsewhere"))});
  int requests = 0;
  for (const auto& each : table) {
    SCOPED_TRACE(each.name);
    server.serve(pathOf("en"), each.answer);
    const auto repository = LocalizationRepository::make("en");
    EXPECT_EQ(hint(*repository), kBuiltIn);
    repository->update();
    ASSERT_TRUE(completed(++requests));
    ASSERT_TRUE(mainThreadCaughtUp());
    EXPECT_EQ(hint(*repository), each.hint);
  }
}

TEST_F(ConcurrentLocalizationRepository, LargeTableNeedsTheMainThreadOnlyToTakeItsPlace) {
  constexpr std::size_t kSize = 50 << 20;
  server.serve(pathOf("en"), {httpAnswer(200, tableWithHint(std::string(kSize, 'x')))});
  const auto repository = LocalizationRepository::make("en");
  std::vector<std::thread::id> changes;
  const auto token =
      repository->onWillChange([&changes] { changes.push_back(std::this_thread::get_id()); });
  repository->update();
  ASSERT_TRUE(completed(1));  // fetched and parsed
  EXPECT_TRUE(changes.empty());
  EXPECT_EQ(hint(*repository), kBuiltIn);
  ASSERT_TRUE(mainThreadCaughtUp());
  EXPECT_EQ(changes, std::vector{std::this_thread::get_id()});
  EXPECT_EQ(hint(*repository).size(), kSize);
}

}  // namespace
}  // namespace quorix::testing
