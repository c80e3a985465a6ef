#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QNetworkReply>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "qt/QtURLTransport.h"
#include "tests/qt/Fetch.h"
#include "tests/qt/LoopbackServer.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

// The application's end needs a process of its own.
class ConcurrentUrlSessionDeathTest : public ::testing::Test {
 protected:
  ConcurrentUrlSessionDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  bool wasCancelled(Fetch& fetch) {
    const auto error = fetch.wait().response.error;
    return error && error->code == QNetworkReply::OperationCanceledError &&
           fetch.completions() == 1;
  }

  /// A request that is on its way and gets no answer.
  Fetch stalled() {
    server.serve("/still", {{httpAnswer(200, "answer"), SIZE_MAX, false, "never"}});
    Fetch fetch(transport, server.base() + "/still");
    EXPECT_TRUE(waitUntil([this] { return !server.requests("/still").empty(); }));
    return fetch;
  }

  LoopbackServer server;
  qt::QtURLTransport transport;
};

[[noreturn]] void leave(bool passed) { std::_Exit(passed ? 0 : 1); }

TEST_F(ConcurrentUrlSessionDeathTest, EndsWithTheApplicationAndBeginsAnewWithTheNext) {
  EXPECT_EXIT(
      {
        Fetch inFlight = stalled();
        delete QCoreApplication::instance();
        const bool ended = inFlight.completions() == 1 && wasCancelled(inFlight);
        Fetch without(transport, server.base() + "/x");
        const bool refused = wasCancelled(without);

        int argc = 0;
        QCoreApplication next(argc, nullptr);
        LoopbackServer nextServer;
        nextServer.serve("/x", {{httpAnswer(200, "answer")}});
        Fetch again(transport, nextServer.base() + "/x");
        leave(ended && refused && again.wait().response.body == "answer");
      },
      ::testing::ExitedWithCode(0), "");
}

TEST_F(ConcurrentUrlSessionDeathTest, ProcessMayExitWithARequestInFlight) {
  EXPECT_EXIT(
      {
        stalled();
        std::exit(0);
      },
      ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorix::testing
