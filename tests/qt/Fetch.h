#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "platform/foundation/URLSession.h"

namespace quorix::testing {

struct Outcome {
  foundation::URLResponse response;
  std::thread::id thread;  ///< on which it completed
};

/// One request. The main thread stands still while it waits: nothing may need its event loop.
class Fetch {
 public:
  Fetch(foundation::URLTransport& transport, const std::string& address) {
    transport.start(foundation::URL::parse(address).value(),
                    [state = state_](foundation::URLResponse response) {
                      if (++state->completions == 1) {
                        state->outcome.set_value({std::move(response), std::this_thread::get_id()});
                      }
                    });
  }

  Outcome wait() {
    auto outcome = state_->outcome.get_future();
    if (outcome.wait_for(std::chrono::seconds(30)) != std::future_status::ready) {
      ADD_FAILURE() << "the request never completed";
      return {};
    }
    return outcome.get();
  }

  int completions() const { return state_->completions; }

 private:
  struct State {
    std::promise<Outcome> outcome;
    std::atomic<int> completions = 0;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace quorix::testing
