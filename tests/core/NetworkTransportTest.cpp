#include "platform/foundation/NetworkTransport.h"

#include <atomic>
#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <semaphore>
#include <stdexcept>

#include "platform/foundation/Runtime.h"
#include "tests/core/Fetch.h"
#include "tests/core/Resources.h"

namespace quorix::testing {
namespace {

using foundation::NetworkTransport;
using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

/// A thread whose fetches end when the test says so.
class TestThread final : public foundation::NetworkThread {
 public:
  void post(std::function<void()> work) override { boost::asio::post(loop_, std::move(work)); }
  std::shared_ptr<void> fetch(const URL& url, std::chrono::milliseconds,
                              foundation::URLTransport::Completion ended) override {
    started_ += url.path();
    ended_[url.path()] = std::move(ended);
    return {this, [this, path = url.path()](void*) { ended_.erase(path); }};
  }
  void quit() override { loop_.stop(); }
  bool wait(std::chrono::steady_clock::time_point deadline) override {
    const bool isSelf = loop_.get_executor().running_in_this_thread();
    return !isSelf && ends_.wait_until(deadline) == std::future_status::ready;
  }

  /// The paths of the fetches that the work so far has started, since the last call.
  std::string started() {
    std::promise<std::string> all;
    post([&] { all.set_value(std::exchange(started_, {})); });
    return all.get_future().get();
  }
  void end(const std::string& path) {
    post([this, path] { std::exchange(ended_.at(path), {})({{}, path, 200}); });
  }

 private:
  std::string started_;
  std::map<std::string, foundation::URLTransport::Completion> ended_;
  boost::asio::io_context loop_;
  const boost::asio::executor_work_guard<boost::asio::io_context::executor_type> idle_{
      loop_.get_executor()};
  std::future<void> ends_ = std::async(std::launch::async, [this] { loop_.run(); });
};

struct ConcurrentNetworkTransport : ::testing::Test {
  ConcurrentNetworkTransport() {
    URLSession::shared().install(transport);
    transport->open();
  }

  const foundation::Runtime::Fresh<URLSession> session;
  TestThread* thread = nullptr;  // the latest
  const std::shared_ptr<NetworkTransport> transport = std::make_shared<NetworkTransport>([this] {
    auto made = std::make_unique<TestThread>();
    thread = made.get();
    return made;
  });
};

TEST_F(ConcurrentNetworkTransport, SharesFetchesAndStartsSixForAServer) {
  int asked = 0;  // on the thread
  const auto protocol = URLSession::shared().registerProtocol([&](const URL&) {
    ++asked;
    return std::optional<URLResponse>();
  });
  std::vector<Fetch> all;
  for (int i = 0; i < 8; ++i) all.emplace_back("http://a/" + std::to_string(i));
  EXPECT_EQ(thread->started(), "/0/1/2/3/4/5");
  Fetch running("http://a/1"), waiting("http://a/7"), elsewhere("http://b/9");
  EXPECT_EQ(thread->started(), "/9");
  thread->end("/1");
  EXPECT_EQ(thread->started(), "/6");
  EXPECT_EQ(running.wait().response.body, "/1");
  EXPECT_EQ(all[1].wait().response.body, "/1");
  const Fetch again("http://a/1");
  thread->end("/9");
  EXPECT_EQ(elsewhere.wait().response.status, 200);
  EXPECT_EQ(thread->started(), "");
  thread->end("/0");
  EXPECT_EQ(thread->started(), "/7");
  thread->end("/7");
  EXPECT_EQ(thread->started(), "/1");
  EXPECT_EQ(waiting.wait().response.body, "/7");
  EXPECT_FALSE(again.isDone());
  EXPECT_EQ(asked, 12) << "each request, also one that joins a fetch";
}

TEST_F(ConcurrentNetworkTransport, AsksProtocolsBeforeTheNetworkOnItsThread) {
  std::atomic<std::thread::id> askedOn;
  const auto protocol =
      URLSession::shared().registerProtocol([&](const URL& url) -> std::optional<URLResponse> {
        askedOn = std::this_thread::get_id();
        if (url.path() == "/exception") throw std::runtime_error("out of order");
        if (url.path() == "/number") throw 1;
        if (url.path() != "/inside") return std::nullopt;
        return URLResponse{{}, "protocol", 0};
      });
  const auto [inside, itsThread] = Fetch("http://a/inside").wait();
  EXPECT_EQ(inside.body, "protocol");
  EXPECT_EQ(itsThread, askedOn.load());
  EXPECT_NE(itsThread, std::this_thread::get_id());
  EXPECT_EQ(Fetch("http://a/exception").error(), -2);
  EXPECT_EQ(Fetch("http://a/number").error(), -2);
  EXPECT_EQ(Fetch("file:///etc/hostname").error(), 301);
  Fetch outside("http://a/outside");
  EXPECT_EQ(thread->started(), "/outside");
  thread->end("/outside");
  EXPECT_EQ(outside.wait().thread, itsThread);
}

TEST_F(ConcurrentNetworkTransport, EndsAllRequestsInTimeAndBeginsAnew) {
  std::binary_semaphore blocked(0), release(0), returns(0);
  const auto protocol =
      URLSession::shared().registerProtocol([&](const URL& url) -> std::optional<URLResponse> {
        if (url.path() != "/block") return std::nullopt;
        blocked.release();
        release.acquire();
        returns.release();
        return URLResponse{{}, "too late", 200};
      });
  for (const bool aProtocolBlocks : {false, true}) {
    transport->open();
    std::vector<Fetch> pending;
    pending.emplace_back("http://a/running");
    EXPECT_EQ(thread->started(), "/running");
    if (aProtocolBlocks) {
      pending.emplace_back("http://a/block");
      blocked.acquire();
      pending.emplace_back("http://a/behind");
    }
    transport->close();
    for (const Fetch& fetch : pending) EXPECT_TRUE(fetch.isDone());
    pending.emplace_back("http://a/closed");
    for (Fetch& fetch : pending) EXPECT_EQ(fetch.error(), 5);
  }
  transport->open();
  Fetch again("http://a/again");
  EXPECT_EQ(thread->started(), "/again");
  release.release();
  returns.acquire();
  thread->end("/again");
  EXPECT_EQ(again.wait().response.body, "/again");
}

// The thread sanitizer does not run it: it reports a thread that ends the process.
using NetworkTransportDeathTest = ConcurrentNetworkTransport;

TEST_F(NetworkTransportDeathTest, ACompletionMayEndTheProcess) {
  useFreshProcesses();
  EXPECT_EXIT(
      {
        static const auto atTheEnd = transport;
        std::atexit([] { atTheEnd->close(); });
        URLSession::shared().get(*URL::parse("http://a/1"),
                                 [](const auto&) { std::fputs("canceled", stderr); });
        URLSession::shared().get(*URL::parse("file:///x"), [](const auto&) { std::exit(0); });
        for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
      },
      ::testing::ExitedWithCode(0), "canceled");
}

}  // namespace
}  // namespace quorix::testing
