#pragma once

#include <gtest/gtest.h>

#include <future>
#include <thread>
#include <utility>

#include "platform/foundation/URLSession.h"

namespace quorix::testing {

struct Outcome {
  foundation::URLResponse response;
  std::thread::id thread;  ///< the thread of its completion
};

/// One request of the session. The main thread blocks while it waits, so requests must not need its
/// event loop. A second completion ends the process, because the promise is already set.
class Fetch {
 public:
  explicit Fetch(const std::string& address) {
    foundation::URLSession::shared().get(
        foundation::URL::parse(address).value(),
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

  /// The code of its error, or 0.
  std::int64_t error() {
    const auto response = wait().response;
    EXPECT_NE(response.error.has_value(), response.body.has_value());
    return response.error ? response.error->code : 0;
  }

 private:
  bool isDoneWithin(std::chrono::seconds limit) const {
    return outcome_.wait_for(limit) == std::future_status::ready;
  }

  std::shared_ptr<std::promise<Outcome>> promise_ = std::make_shared<std::promise<Outcome>>();
  std::future<Outcome> outcome_ = promise_->get_future();
};

}  // namespace quorix::testing
