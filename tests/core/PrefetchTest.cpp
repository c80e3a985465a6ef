#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/Runtime.h"
#include "platform/foundation/URLSession.h"

namespace quorix {
namespace {

using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

/// A server that answers at once; counts what reaches it.
struct Server final : foundation::URLTransport {
  std::string body = R"({"returns":{"title":"remote"}})";
  std::vector<std::string> asked;

  void start(const URL& url, Completion completion) override {
    if (auto answer = URLSession::shared().answerInProcess(url)) {
      completion(*std::move(answer));
    } else {
      asked.push_back(url.path());
      completion({{}, body, 200});
    }
  }
};

class Prefetch : public ::testing::Test {
 protected:
  Prefetch() { URLSession::shared().install(server); }

  /// The title of a row that comes on screen.
  static std::string titleIn(const std::string& locale) {
    const auto repository = LocalizationRepository::make(locale);
    repository->update();
    foundation::MainQueue::drain();
    return std::string(repository->strings.get()->text("returns", "title"));
  }

  const foundation::Runtime::Fresh<URLSession> session_;
  const std::shared_ptr<Server> server = std::make_shared<Server>();
};

TEST_F(Prefetch, ServesRowsFromMemoryEvenWithoutANetwork) {
  prefetch("fr");
  prefetch("fr");
  EXPECT_EQ(server->asked.size(), 1u);
  EXPECT_EQ(titleIn("fr"), "remote");
  URLSession::shared().setNetworkEnabled(false);
  EXPECT_EQ(titleIn("fr"), "remote");
  EXPECT_EQ(titleIn("it"), "Your return fee");
  {
    const auto fake = URLSession::shared().registerProtocol([](const URL&) {
      return URLResponse{{}, R"({"returns":{"title":"fake"}})", 200};
    });
    EXPECT_EQ(titleIn("it"), "fake");
  }
  URLSession::shared().setNetworkEnabled(true);
  EXPECT_EQ(titleIn("it"), "remote");
  EXPECT_EQ(server->asked, (std::vector<std::string>{"/translations/score/overlay/fr.json",
                                                     "/translations/score/overlay/it.json"}));
}

TEST_F(Prefetch, KeepsNothingThatWouldStandInTheWayOfBetterTexts) {
  server->body = "<html>busy</html>";
  prefetch("pt");
  server->body = R"({"returns":{"title":"remote"}})";
  EXPECT_EQ(titleIn("pt"), "remote") << "an answer that is no table";

  auto fake = URLSession::shared().registerProtocol([](const URL&) -> std::optional<URLResponse> {
    return URLResponse{{}, R"({"returns":{"title":"fake"}})", 200};
  });
  prefetch("nl");
  EXPECT_EQ(titleIn("nl"), "fake");
  fake.reset();
  EXPECT_EQ(titleIn("nl"), "remote") << "a protocol's answer";

  prefetch("da");
  fake = URLSession::shared().registerProtocol([](const URL&) {
    return URLResponse{{}, R"({"returns":{"title":"fake"}})", 200};
  });
  EXPECT_EQ(titleIn("da"), "fake") << "protocols come first";

  fake.reset();
  const auto url = LocalizationRepository::address("sv").value();
  URLSession::shared().prefetch(url, std::chrono::seconds(0), [](const auto&) { return true; });
  server->asked.clear();
  EXPECT_EQ(titleIn("sv"), "remote");
  EXPECT_EQ(server->asked.size(), 1u) << "an answer that has outlived its time";
}

TEST_F(Prefetch, KeepsTheLatestAddresses) {
  const auto at = [](std::size_t number) {
    return URL::parse("https://shop.example/" + std::to_string(number)).value();
  };
  for (std::size_t i = 0; i <= 2 * URLSession::mostPrefetched + 1; ++i) {
    URLSession::shared().prefetch(at(i / 2), std::chrono::hours(1), [](auto&) { return true; });
  }
  EXPECT_FALSE(URLSession::shared().answerInProcess(at(0)));
  EXPECT_TRUE(URLSession::shared().answerInProcess(at(1)));
}

}  // namespace
}  // namespace quorix
