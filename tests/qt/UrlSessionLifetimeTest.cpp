#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QNetworkReply>
#include <cstdlib>
#include <optional>
#include <semaphore>
#include <string>

#include "qt/QtURLTransport.h"
#include "tests/qt/Fetch.h"
#include "tests/qt/LoopbackServer.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

bool wasCancelled(Fetch& fetch) {
  const auto error = fetch.wait().response.error;
  return error && error->code == QNetworkReply::OperationCanceledError;
}

// The application's end needs a process of its own, which here exits with a request in flight.
TEST(ConcurrentUrlSessionDeathTest, EndsWithTheApplicationAndBeginsAnewWithTheNext) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        qt::QtURLTransport transport;
        LoopbackServer server;
        server.serve("/still", silence());
        Fetch inFlight(transport, server.base() + "/still");
        bool passed = waitUntil([&] { return !server.requests("/still").empty(); });
        delete QCoreApplication::instance();
        passed = passed && inFlight.isDone() && wasCancelled(inFlight);
        Fetch without(transport, server.base() + "/x");
        passed = passed && wasCancelled(without);

        int argc = 0;
        QCoreApplication next(argc, nullptr);
        LoopbackServer nextServer;
        nextServer.serve("/x", {httpAnswer(200, "answer")});
        Fetch again(transport, nextServer.base() + "/x");
        passed = passed && again.wait().response.body == "answer";
        nextServer.serve("/still", silence());
        const Fetch atTheEnd(transport, nextServer.base() + "/still");
        passed = passed && waitUntil([&] { return !nextServer.requests("/still").empty(); });
        std::exit(passed ? 0 : 1);
      },
      ::testing::ExitedWithCode(0), "");
}

[[noreturn]] void endWithABlockedProtocol() {
  std::binary_semaphore blocked(0), release(0), returns(0);
  const auto protocol = foundation::URLSession::shared().registerProtocol(
      [&](const foundation::URL& url) -> std::optional<foundation::URLResponse> {
        if (url.absoluteString().find("/block") == std::string::npos) return std::nullopt;
        blocked.release();
        release.acquire();
        returns.release();
        return foundation::URLResponse{{}, "too late", 200};
      });
  qt::QtURLTransport transport;
  LoopbackServer server;
  server.serve("/still", silence());
  Fetch inFlight(transport, server.base() + "/still");
  bool passed = waitUntil([&] { return !server.requests("/still").empty(); });
  Fetch blocking(transport, server.base() + "/block");
  blocked.acquire();
  Fetch behind(transport, server.base() + "/x");
  delete QCoreApplication::instance();
  for (Fetch* fetch : {&inFlight, &blocking, &behind}) {
    passed = passed && fetch->isDone() && wasCancelled(*fetch);
  }

  int argc = 0;
  QCoreApplication next(argc, nullptr);
  LoopbackServer nextServer;
  nextServer.serve("/x", {httpAnswer(200, "answer")});
  Fetch again(transport, nextServer.base() + "/x");
  passed = passed && again.wait().response.body == "answer";
  release.release();
  returns.acquire();
  std::exit(passed ? 0 : 1);
}

// A protocol that does not return in time is abandoned, and its late answer is ignored.
TEST(ConcurrentUrlSessionDeathTest, EndsInSpiteOfAProtocolThatBlocks) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(endWithABlockedProtocol(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorix::testing
