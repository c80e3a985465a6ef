#include "QuorixWidgets/localization/Translations.h"

#include <thread>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/Runtime.h"
#include "tests/core/Vectors.h"
#include "tests/core/Widgets.h"

namespace quorix {
namespace {

using foundation::Error;
using foundation::MainQueue;
using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

using Table = std::shared_ptr<const TranslationTable>;

std::string outcome(const TranslationTableResult& result) {
  if (std::holds_alternative<Table>(result)) return "table";
  const Error& error = std::get<Error>(result);
  if (error.domain == "JSON") return "not json";
  return error.domain == "Localization" && error.code == -2 ? "wrong shape" : error.domain;
}

void expectOutcome(simdjson::dom::element row) {
  const auto result = readTranslationTable(::text(row, "body"));
  ASSERT_EQ(outcome(result), ::text(row, "outcome"));
  if (outcome(result) != "table") return;
  std::size_t count = 0;
  for (const auto section : row["table"].get_object()) {
    for (const auto entry : section.value.get_object()) {
      ++count;
      EXPECT_EQ(std::get<Table>(result)->text(section.key, entry.key),
                std::string_view(entry.value));
    }
  }
  EXPECT_EQ(std::get<Table>(result)->entries().size(), count);
}

TEST(TranslationTable, IsReadFromObjectsOfObjectsOfTextsOrRefusedWhole) {
  forEachRow("tables", expectOutcome);
  forEachRow("tables_own", expectOutcome);
}

URLResponse answer(const std::string& body, int status = 200) { return {{}, body, status}; }

/// The network holds each request until the test answers it.
class LocalizationRepositoryTest : public ::testing::Test {
 protected:
  const std::shared_ptr<testing::HeldTransport> network_ = testing::HeldTransport::install();
};

TEST_F(LocalizationRepositoryTest, ReplacesTheTableWholeOnTheMainQueue) {
  const auto repository = LocalizationRepository::make("es-MX");
  EXPECT_EQ(repository->locale(), "es-MX");
  std::vector<std::string> seen;
  const auto subscription = repository->onWillChange(
      [&] { seen.emplace_back(repository->strings.get()->text("returns", "title")); });
  repository->update();
  network_->held.at(0)(answer(R"({"returns":{"title":"Tarifa"}})", 404));
  EXPECT_TRUE(seen.empty());
  EXPECT_EQ(MainQueue::drain(), 1);
  EXPECT_EQ(seen, std::vector<std::string>{"Your return fee"}) << "told before the change, once";
  EXPECT_EQ(repository->strings.get()->text("returns", "title"), "Tarifa");
  EXPECT_EQ(repository->strings.get()->text("returns", "fee"), "");
  EXPECT_EQ(repository->strings.get()->text("actions", "close"), "");
}

TEST_F(LocalizationRepositoryTest, KeepsTheTableWhenAFetchFails) {
  const auto repository = LocalizationRepository::make("es");
  bool told = false;
  const auto subscription = repository->onWillChange([&] { told = true; });
  for (const URLResponse& response :
       {URLResponse{Error{"net", 1, "offline"}, {}, 0}, URLResponse{{}, {}, 204}, answer("<html>"),
        answer(R"({"labels":{"hint":1}})")}) {
    repository->update();
    network_->held.back()(response);
  }
  EXPECT_EQ(MainQueue::drain(), 0);
  EXPECT_FALSE(told);
  EXPECT_EQ(repository->strings.get(), builtInTranslations("es"));
}

TEST_F(LocalizationRepositoryTest, KeepsTheLastTableToArrive) {
  const auto repository = LocalizationRepository::make("en");
  repository->update();
  repository->update();
  network_->held.at(1)(answer(R"({"a":{"b":"second"}})"));
  network_->held.at(0)(answer(R"({"a":{"b":"first"}})"));
  EXPECT_EQ(MainQueue::drain(), 2) << "neither dropped nor merged";
  EXPECT_EQ(repository->strings.get()->text("a", "b"), "first");
}

TEST(ConcurrentLocalizationRepository, MayGoWhileItsAnswerArrives) {
  for (int round = 0; round < 100; ++round) {
    const auto network = testing::HeldTransport::install();
    auto repository = LocalizationRepository::make("en");
    const std::weak_ptr<LocalizationRepository> weak = repository;
    repository->update();
    std::thread arriving([&] { network->held.at(0)(answer(R"({"a":{"b":"c"}})")); });
    repository.reset();
    EXPECT_TRUE(weak.expired()) << "a request in flight keeps nothing alive";
    arriving.join();
    EXPECT_EQ(MainQueue::drain(), 1);
  }
}

const std::string kRemote = R"({"returns":{"title":"remote"}})";
const std::string kFake = R"({"returns":{"title":"fake"}})";

/// A server that answers at once and counts requests.
struct Server final : foundation::URLTransport {
  std::string body = kRemote;
  std::vector<std::string> asked;

  void start(const URL& url, Completion completion) override {
    if (auto inProcess = URLSession::shared().answerInProcess(url)) {
      completion(*std::move(inProcess));
    } else {
      asked.push_back(url.path());
      completion(answer(body));
    }
  }
};

class Prefetch : public ::testing::Test {
 protected:
  Prefetch() { URLSession::shared().install(server); }

  /// Answers before the server while it exists.
  static auto fake() {
    return URLSession::shared().registerProtocol([](const URL&) { return answer(kFake); });
  }
  /// Shows a row and returns its title.
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
    const auto inFront = fake();
    EXPECT_EQ(titleIn("it"), "fake");
  }
  URLSession::shared().setNetworkEnabled(true);
  EXPECT_EQ(titleIn("it"), "remote");
  EXPECT_EQ(server->asked, (std::vector<std::string>{"/translations/score/overlay/fr.json",
                                                     "/translations/score/overlay/it.json"}));
}

TEST_F(Prefetch, GivesRowsTheirTextsAtOnce) {
  const auto waiting = LocalizationRepository::make("fr");
  prefetch("fr");
  int changes = 0;
  const auto told = waiting->onWillChange([&] { ++changes; });
  waiting->update();
  waiting->update();
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(LocalizationRepository::make("fr")->strings.get(), waiting->strings.get());
  EXPECT_EQ(MainQueue::drain(), 0);
  const auto inFront = fake();
  EXPECT_EQ(LocalizationRepository::make("fr")->strings.get(), builtInTranslations("fr"));
}

TEST_F(Prefetch, KeepsNothingThatWouldStandInTheWayOfBetterTexts) {
  server->body = "<html>busy</html>";
  prefetch("pt");
  server->body = kRemote;
  EXPECT_EQ(titleIn("pt"), "remote") << "an answer that is no table";

  auto inFront = fake();
  prefetch("nl");
  EXPECT_EQ(titleIn("nl"), "fake");
  inFront.reset();
  EXPECT_EQ(titleIn("nl"), "remote") << "a protocol's answer";

  prefetch("da");
  inFront = fake();
  EXPECT_EQ(titleIn("da"), "fake") << "protocols come first";

  inFront.reset();
  const auto url = LocalizationRepository::address("sv").value();
  const auto read = [](const auto&) { return std::make_shared<int>(); };
  URLSession::shared().prefetch(url, std::chrono::seconds(0), read);
  server->asked.clear();
  EXPECT_EQ(titleIn("sv"), "remote");
  EXPECT_EQ(server->asked.size(), 1u) << "an answer that has outlived its time";
}

TEST_F(Prefetch, WaitsForATransport) {
  {
    const foundation::Runtime::Fresh<URLSession> beforeTheEngine;
    prefetch("fr");
    URLSession::shared().install(server);
    EXPECT_EQ(titleIn("fr"), "remote");
    EXPECT_EQ(server->asked.size(), 1u);
  }
  EXPECT_EQ(titleIn("fr"), "remote");
  EXPECT_EQ(server->asked.size(), 2u) << "the session from before is back";
}

TEST_F(Prefetch, KeepsTheLatestAddresses) {
  const auto at = [](std::size_t number) {
    return URL::parse("https://shop.example/" + std::to_string(number)).value();
  };
  const auto read = [](const auto&) { return std::make_shared<int>(); };
  for (std::size_t i = 0; i <= 2 * URLSession::mostPrefetched + 1; ++i) {
    URLSession::shared().prefetch(at(i / 2), std::chrono::hours(1), read);
  }
  EXPECT_FALSE(URLSession::shared().answerInProcess(at(0)));
  EXPECT_TRUE(URLSession::shared().answerInProcess(at(1)));
}

}  // namespace
}  // namespace quorix
