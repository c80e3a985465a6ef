#include "platform/foundation/URLSession.h"

#include <algorithm>
#include <mutex>
#include <thread>
#include <utility>

namespace quorix::foundation {
namespace {

/// What answers before an engine has installed its transport: protocols only, no network.
class NoNetwork final : public URLTransport {
 public:
  void start(const URL& url, Completion completion) override {
    std::thread([url, completion = std::move(completion)] {
      if (auto answer = URLSession::shared().answerInProcess(url)) {
        completion(*std::move(answer));
      } else {
        completion({Error{"URLSession", -1, "no network transport is installed"}, {}, 0});
      }
    }).detach();
  }
};

}  // namespace

struct URLSession::State {
  mutable std::mutex mutex;
  std::shared_ptr<URLTransport> transport = std::make_shared<NoNetwork>();
  std::vector<std::weak_ptr<URLProtocol>> protocols;
};

URLSession::URLSession() : state_(std::make_unique<State>()) {}
URLSession::~URLSession() = default;

// Never destroyed: a request's thread may still ask for it while the process ends.
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
      if (auto answer = (*protocol)(url)) return answer;
    }
  }
  return std::nullopt;
}

}  // namespace quorix::foundation
