#include "platform/foundation/URLSession.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <string_view>
#include <utility>

#include "platform/foundation/MainQueue.h"
#include "platform/foundation/Runtime.h"
#include "platform/foundation/URLError.h"

namespace quorix::foundation {
namespace {

URLResponse protocolFailure(std::string_view text) {
  return failure(URLError::protocolThrew, "a registered protocol threw: " + std::string(text));
}

// Protocols run on a thread of the library, where an exception would end the process.
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
  using Clock = std::chrono::steady_clock;

  struct Prefetched {
    URL url;
    std::function<void()> waiting;          ///< starts the request once a transport is installed
    std::optional<URLResponse> response;    ///< absent until it arrives
    std::shared_ptr<const void> made = {};  ///< the reader's result
    Clock::time_point end = {};             ///< of its lifetime
  };

  /// Removes the answers whose lifetime has ended, then searches.
  auto prefetchedFor(std::string_view address) {
    std::erase_if(prefetched, [](const auto& p) { return p.response && p.end <= Clock::now(); });
    return std::ranges::find_if(prefetched,
                                [&](const auto& p) { return p.url.absoluteString() == address; });
  }
  auto prefetchedFor(const URL& url) { return prefetchedFor(url.absoluteString()); }

  void dropEndedProtocols() {
    std::erase_if(protocols, [](const auto& entry) { return entry.expired(); });
  }

  std::mutex mutex;
  std::shared_ptr<URLTransport> transport;  ///< null until one is installed
  std::vector<std::weak_ptr<URLProtocol>> protocols;
  std::vector<Prefetched> prefetched;  // the oldest first
  bool networkEnabled = true;
};

URLSession::URLSession() : state_(std::make_unique<State>()) {}
URLSession::~URLSession() = default;

URLSession& URLSession::shared() { return Runtime::the<URLSession>(); }

void URLSession::get(const URL& url, URLTransport::Completion completion) {
  std::shared_ptr<URLTransport> transport;
  {
    const std::scoped_lock lock(state_->mutex);
    transport = state_->transport;
  }
  if (transport) return transport->start(url, std::move(completion));
  asyncOnNewThread([url, completion = std::move(completion)] {
    auto answer = shared().answerInProcess(url);
    if (!answer) answer = failure(URLError::noNetwork, "no network transport is installed");
    completion(*std::move(answer));
  });
}

void URLSession::install(std::shared_ptr<URLTransport> transport) {
  std::vector<std::function<void()>> waiting;
  {
    const std::scoped_lock lock(state_->mutex);
    state_->transport = std::move(transport);
    for (auto& entry : state_->prefetched) {
      if (entry.waiting) waiting.push_back(std::exchange(entry.waiting, nullptr));
    }
  }
  for (const auto& ask : waiting) ask();
}

std::shared_ptr<void> URLSession::registerProtocol(URLProtocol protocol) {
  auto token = std::make_shared<URLProtocol>(std::move(protocol));
  const std::scoped_lock lock(state_->mutex);
  state_->dropEndedProtocols();
  state_->protocols.push_back(token);
  return token;
}

void URLSession::setNetworkEnabled(bool enabled) {
  const std::scoped_lock lock(state_->mutex);
  state_->networkEnabled = enabled;
}

void URLSession::prefetch(const URL& url, std::chrono::seconds lifetime, Reader read) {
  const auto keep = [this, url, lifetime, read = std::move(read)](URLResponse response) {
    auto made = read(response);
    const std::scoped_lock lock(state_->mutex);
    const auto entry = state_->prefetchedFor(url);
    if (entry == state_->prefetched.end()) return;
    if (made) {
      entry->response = std::move(response);
      entry->made = std::move(made);
      entry->end = State::Clock::now() + lifetime;
    } else {
      state_->prefetched.erase(entry);
    }
  };
  {
    const std::scoped_lock lock(state_->mutex);
    if (state_->prefetchedFor(url) != state_->prefetched.end()) return;
    if (state_->prefetched.size() >= mostPrefetched) {
      state_->prefetched.erase(state_->prefetched.begin());
    }
    auto& entry = state_->prefetched.emplace_back(State::Prefetched{url, {}, {}});
    if (!state_->transport) {
      entry.waiting = [this, url, keep] { get(url, keep); };
      return;
    }
  }
  get(url, keep);
}

std::shared_ptr<const void> URLSession::prefetched(const std::function<std::string()>& address) {
  const std::scoped_lock lock(state_->mutex);
  if (state_->prefetched.empty()) return nullptr;
  state_->dropEndedProtocols();
  if (!state_->protocols.empty()) return nullptr;
  const auto kept = state_->prefetchedFor(address());
  return kept == state_->prefetched.end() ? nullptr : kept->made;
}

std::optional<URLResponse> URLSession::answerInProcess(const URL& url) {
  std::vector<std::weak_ptr<URLProtocol>> protocols;
  {
    const std::scoped_lock lock(state_->mutex);
    protocols = state_->protocols;
  }
  std::optional<URLResponse> answer;
  for (auto entry = protocols.rbegin(); entry != protocols.rend() && !answer; ++entry) {
    if (const auto protocol = entry->lock()) answer = ask(*protocol, url);
  }
  const std::scoped_lock lock(state_->mutex);
  const auto kept = state_->prefetchedFor(url);
  if (answer) {
    // A protocol may be removed at any time. Do not keep its answers longer.
    if (kept != state_->prefetched.end()) state_->prefetched.erase(kept);
    return answer;
  }
  if (kept != state_->prefetched.end() && kept->response) return kept->response;
  if (!state_->networkEnabled) return failure(URLError::noNetwork, "the network is switched off");
  return std::nullopt;
}

}  // namespace quorix::foundation
