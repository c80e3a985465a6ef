#pragma once

#include <gmock/gmock.h>

#include <QNetworkReply>
#include <future>
#include <thread>
#include <utility>

#include "qt/network/QtURLTransport.h"
#include "tests/qt/LoopbackServer.h"

namespace quorix::testing {

struct Outcome {
  foundation::URLResponse response;
  std::thread::id thread;  ///< the thread of its completion
};

/// One request. The main thread blocks while it waits, so requests must not need its event loop. A
/// second completion ends the process, because the promise is already set.
class Fetch {
 public:
  Fetch(foundation::URLTransport& transport, const std::string& address) {
    transport.start(foundation::URL::parse(address).value(),
                    [promise = promise_](foundation::URLResponse response) {
                      promise->set_value({std::move(response), std::this_thread::get_id()});
                    });
  }

  bool isDone() const { return isDoneWithin(std::chrono::seconds(0)); }

  Outcome wait() {
    if (isDoneWithin(std::chrono::seconds(30))) return outcome_.get();
    ADD_FAILURE() << "the request never completed";
    return {};
  }

 private:
  bool isDoneWithin(std::chrono::seconds limit) const {
    return outcome_.wait_for(limit) == std::future_status::ready;
  }

  std::shared_ptr<std::promise<Outcome>> promise_ = std::make_shared<std::promise<Outcome>>();
  std::future<Outcome> outcome_ = promise_->get_future();
};

class ConcurrentUrlSession : public ::testing::Test {
 protected:
  Outcome fetch(const std::string& path) { return Fetch(transport, server.base() + path).wait(); }

  /// The error of a request for `address`, or `NoError`.
  QNetworkReply::NetworkError errorOf(const std::string& address) {
    const foundation::URLResponse response = Fetch(transport, address).wait().response;
    EXPECT_NE(response.error.has_value(), response.body.has_value());
    const auto code = response.error ? response.error->code : 0;
    return static_cast<QNetworkReply::NetworkError>(code);
  }

  using Expected = std::pair<std::string, QNetworkReply::NetworkError>;
  void expectErrors(std::initializer_list<Expected> table) {
    for (const auto& [address, error] : table) EXPECT_EQ(errorOf(address), error) << address;
  }

  LoopbackServer server;
  qt::QtURLTransport transport;
};

inline const std::string kTable = R"({"labels":{"hint":"remote"}})";

}  // namespace quorix::testing
