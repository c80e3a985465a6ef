#pragma once

#include <gtest/gtest.h>

#include <QNetworkReply>
#include <string>

#include "qt/QtURLTransport.h"
#include "tests/qt/Fetch.h"
#include "tests/qt/LoopbackServer.h"

namespace quorix::testing {

class ConcurrentUrlSession : public ::testing::Test {
 protected:
  Outcome fetch(const std::string& path) { return Fetch(transport, server.base() + path).wait(); }

  /// What a request for `address` fails with, or `NoError`.
  QNetworkReply::NetworkError errorOf(const std::string& address) {
    const foundation::URLResponse response = Fetch(transport, address).wait().response;
    EXPECT_NE(response.error.has_value(), response.body.has_value());
    const auto code = response.error ? response.error->code : 0;
    return static_cast<QNetworkReply::NetworkError>(code);
  }

  LoopbackServer server;
  qt::QtURLTransport transport;
};

inline const std::string kTable = R"({"labels":{"hint":"remote"}})";

}  // namespace quorix::testing
