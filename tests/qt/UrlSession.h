#pragma once

#include <gmock/gmock.h>

#include <QNetworkReply>
#include <utility>

#include "qt/Engine.h"
#include "tests/core/Fetch.h"
#include "tests/qt/LoopbackServer.h"

namespace quorix::testing {

class ConcurrentUrlSession : public ::testing::Test {
 protected:
  ConcurrentUrlSession() { qt::installEngine(); }
  Outcome fetch(const std::string& path) { return Fetch(server.base() + path).wait(); }

  /// The error of a request for `address`, or `NoError`.
  QNetworkReply::NetworkError errorOf(const std::string& address) {
    return static_cast<QNetworkReply::NetworkError>(Fetch(address).error());
  }

  using Expected = std::pair<std::string, QNetworkReply::NetworkError>;
  void expectErrors(std::initializer_list<Expected> table) {
    for (const auto& [address, error] : table) EXPECT_EQ(errorOf(address), error) << address;
  }

  LoopbackServer server;
};

inline const std::string kTable = R"({"labels":{"hint":"remote"}})";

}  // namespace quorix::testing
