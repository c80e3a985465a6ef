#include "platform/foundation/URLSession.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace quorix::foundation {
namespace {

/// The transport before an engine has installed one: registered protocols, no network.
class NoNetwork final : public URLTransport {
 public:
  void start(const URL& url, Completion completion) override {
    const auto answer = [url, completion = std::move(completion)] {
      if (auto inProcess = URLSession::shared().answerInProcess(url)) {
        completion(*std::move(inProcess));
      } else {
        completion({Error{"URLSession", -1, "no network transport is installed"}, {}, 0});
      }
    };
    try {
      std::thread(answer).detach();
    } catch (const std::system_error&) {
      answer();  // the system starts no more threads
    }
  }
};

URLResponse protocolFailure(std::string_view text) {
  return {Error{"URLSession", -2, "a registered protocol threw: " + std::string(text)}, {}, 0};
}

// The protocol runs on a thread of the library, where an exception would end the process.
std::optional<URLResponse> ask(const URLProtocol& protocol, const URL& url) {
  try {
    return protocol(url);
  } catch (const std::exception& exception) {
    return protocolFailure(exception.what());
  } catch (...) {
    return protocolFailure("something that is no std::exception");
  }
}

}  // namespace

struct URLSession::State {
  mutable std::mutex mutex;
  std::shared_ptr<URLTransport> transport = std::make_shared<NoNetwork>();
  std::vector<std::weak_ptr<URLProtocol>> protocols;
};

URLSession::URLSession() : state_(std::make_unique<State>()) {}
URLSession::~URLSession() = default;

// Never destroyed: requests on other threads may outlive the main function.
URLSession& URLSession::shared() {
  static URLSession& session = *new URLSession;
  return session;
}

void URLSession::get(const URL& url, URLTransport::Completion completion) {
  std::shared_ptr<URLTransport> transport;
  {
    const std::scoped_lock lock(state_->mutex);
    transport = state_->transport;
  }
  transport->start(url, std::move(completion));
}

void URLSession::install(std::shared_ptr<URLTransport> transport) {
  const std::scoped_lock lock(state_->mutex);
  state_->transport = std::move(transport);
}

std::shared_ptr<void> URLSession::registerProtocol(URLProtocol protocol) {
  auto token = std::make_shared<URLProtocol>(std::move(protocol));
  const std::scoped_lock lock(state_->mutex);
  std::erase_if(state_->protocols, [](const auto& entry) { return entry.expired(); });
  state_->protocols.push_back(token);
  return token;
}

std::optional<URLResponse> URLSession::answerInProcess(const URL& url) const {
  std::vector<std::weak_ptr<URLProtocol>> protocols;
  {
    const std::scoped_lock lock(state_->mutex);
    protocols = state_->protocols;
  }
  for (auto entry = protocols.rbegin(); entry != protocols.rend(); ++entry) {
    if (const auto protocol = entry->lock()) {
      if (auto answer = ask(*protocol, url)) return answer;
    }
  }
  return std::nullopt;
}

}  // namespace quorix::foundation
