#include <gtest/gtest.h>

#include <thread>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/localization/Translations.h"
#include "platform/foundation/MainQueue.h"
#include "tests/core/ScoreWidgets.h"

namespace quorix {
namespace {

using foundation::Error;
using foundation::MainQueue;
using foundation::URLResponse;

URLResponse answer(const std::string& body, int status = 200) { return {{}, body, status}; }

/// The network holds every request until a test answers it.
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

}  // namespace
}  // namespace quorix
