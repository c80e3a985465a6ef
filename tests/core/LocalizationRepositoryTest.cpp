#include <gtest/gtest.h>

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include "QuorixWidgets/localization/BuiltInTranslations.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"

using namespace quorix;
using foundation::Error;
using foundation::MainQueue;
using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

namespace {

/// Asks the registered protocols like the engine's transport, on threads that can be waited for.
class JoinedTransport final : public foundation::URLTransport {
 public:
  ~JoinedTransport() override { join(); }
  void start(const URL& url, Completion completion) override {
    threads_.emplace_back([this, url, completion = std::move(completion)] {
      const auto answer = URLSession::shared().answerInProcess(url);
      completion(answer.value_or(URLResponse{Error{"offline", 1, {}}, {}, 0}));
      const std::scoped_lock lock(mutex_);
      ++completed_;
      changed_.notify_all();
    });
  }
  /// Waits until `count` requests have completed since the last `join`.
  void waitFor(int count) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return completed_ >= count; });
  }
  void join() {
    for (std::thread& thread : threads_) thread.join();
    threads_.clear();
    completed_ = 0;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int completed_ = 0;
  std::vector<std::thread> threads_;
};

class ConcurrentLocalizationRepository : public testing::Test {
 protected:
  ConcurrentLocalizationRepository() {
    URLSession::shared().install(transport_);
    token_ = URLSession::shared().registerProtocol([this](const URL& url) { return answer(url); });
  }
  ~ConcurrentLocalizationRepository() override {
    transport_->join();
    MainQueue::drain();
  }

  /// The next request for `locale` gets `response`. Without one a request waits.
  void respond(const std::string& locale, URLResponse response) {
    const std::scoped_lock lock(mutex_);
    const auto path = "/translations/score/overlay/" + locale + ".json";
    responses_.emplace("https://modules.quorix.example" + path, std::move(response));
    changed_.notify_all();
  }
  void respond(const std::string& locale, std::string body) {
    respond(locale, URLResponse{{}, std::move(body), 200});
  }

  /// Waits until every request is answered and takes the main queue's turns.
  int settle() {
    transport_->join();
    return MainQueue::drain();
  }

  const std::shared_ptr<JoinedTransport> transport_ = std::make_shared<JoinedTransport>();

 private:
  std::optional<URLResponse> answer(const URL& url) {
    std::unique_lock lock(mutex_);
    const auto ready = [&] { return responses_.count(url.absoluteString()) > 0; };
    changed_.wait(lock, ready);
    return responses_.extract(responses_.find(url.absoluteString())).mapped();
  }

  std::shared_ptr<void> token_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::multimap<std::string, URLResponse> responses_;
};

TEST_F(ConcurrentLocalizationRepository, StartsWithTheBuiltInTable) {
  EXPECT_EQ(LocalizationRepository::make("es")->strings.get(), builtInTranslations("es"));
  const auto mexican = LocalizationRepository::make("es-MX");
  EXPECT_EQ(mexican->strings.get(), builtInTranslations("en"));
  EXPECT_EQ(mexican->locale(), "es-MX");
}

TEST_F(ConcurrentLocalizationRepository, ReplacesTheTableWholeOnTheMainQueue) {
  const auto repository = LocalizationRepository::make("es-MX");
  std::vector<std::string> seen;
  const auto subscription = repository->onWillChange(
      [&] { seen.emplace_back(repository->strings.get()->text("returns", "title")); });
  respond("es-MX", URLResponse{{}, R"({"returns":{"title":"Tarifa"}})", 404});
  repository->update();
  EXPECT_TRUE(seen.empty());
  EXPECT_EQ(settle(), 1);
  EXPECT_EQ(seen, std::vector<std::string>{"Your return fee"}) << "told before the change, once";
  EXPECT_EQ(repository->strings.get()->text("returns", "title"), "Tarifa");
  EXPECT_EQ(repository->strings.get()->text("returns", "fee"), "");
  EXPECT_EQ(repository->strings.get()->text("actions", "close"), "");
}

TEST_F(ConcurrentLocalizationRepository, KeepsTheTableWhenAFetchFails) {
  const auto repository = LocalizationRepository::make("es");
  bool told = false;
  const auto subscription = repository->onWillChange([&] { told = true; });
  for (const URLResponse& response : {
           URLResponse{Error{"net", 1, "offline"}, {}, 0},
           URLResponse{{}, {}, 204},
           URLResponse{{}, "<html>", 200},
           URLResponse{{}, R"({"labels":{"hint":1}})", 200},
       }) {
    respond("es", response);
    repository->update();
  }
  EXPECT_EQ(settle(), 0);
  EXPECT_FALSE(told);
  EXPECT_EQ(repository->strings.get(), builtInTranslations("es"));
}

TEST_F(ConcurrentLocalizationRepository, KeepsTheLastTableToArrive) {
  const auto repository = LocalizationRepository::make("en");
  repository->update();
  repository->update();
  respond("en", R"({"a":{"b":"first"}})");
  transport_->waitFor(1);
  respond("en", R"({"a":{"b":"second"}})");
  EXPECT_EQ(settle(), 2) << "neither dropped nor merged";
  EXPECT_EQ(repository->strings.get()->text("a", "b"), "second");
}

TEST_F(ConcurrentLocalizationRepository, DropsTheResultOfAReleasedRepository) {
  for (const bool arrived : {false, true}) {
    auto repository = LocalizationRepository::make("en");
    const std::weak_ptr<LocalizationRepository> weak = repository;
    repository->update();
    if (arrived) respond("en", R"({"a":{"b":"c"}})");
    if (arrived) transport_->waitFor(1);
    repository.reset();
    EXPECT_TRUE(weak.expired()) << "a request in flight keeps nothing alive";
    if (!arrived) respond("en", R"({"a":{"b":"c"}})");
    EXPECT_EQ(settle(), 1);
  }
}

}  // namespace
