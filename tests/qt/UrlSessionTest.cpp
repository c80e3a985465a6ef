#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QNetworkReply>
#include <QSslConfiguration>
#include <QTcpServer>
#include <atomic>
#include <chrono>
#include <future>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/foundation/URLSession.h"
#include "qt/QtURLTransport.h"
#include "tests/qt/Fetch.h"
#include "tests/qt/LoopbackServer.h"

namespace quorix::testing {
namespace {

using foundation::URL;
using foundation::URLResponse;
using qt::QtURLTransport;

class ConcurrentUrlSession : public ::testing::Test {
 protected:
  Outcome fetch(const std::string& path) { return Fetch(transport, server.base() + path).wait(); }

  /// What a request for `address` fails with, or `NoError`.
  QNetworkReply::NetworkError errorOf(const std::string& address) {
    const URLResponse response = Fetch(transport, address).wait().response;
    EXPECT_NE(response.error.has_value(), response.body.has_value());
    const auto code = response.error ? response.error->code : 0;
    return static_cast<QNetworkReply::NetworkError>(code);
  }

  LoopbackServer server;
  QtURLTransport transport;
};

std::string unusedPort() {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  return std::to_string(server.serverPort());
}

const std::string kTable = R"({"labels":{"hint":"remote"}})";
const std::string kPacked = QByteArray::fromHex(
                                "1f8b0800000000000203ab56ca494c4acd2956b2aa56cac8cc2b51b2522a48"
                                "4cce4e4d51aaad05003f78c2631c000000")
                                .toStdString();

struct Case {
  std::string name;
  Answer answer;
  int status = 0;  // and no body for one that ends with an error
  std::optional<std::string> body = {};
};

std::vector<Case> cases() {
  const auto cut = [](int status) {
    std::string bytes = httpAnswer(status, kTable);
    bytes.resize(bytes.size() - 3);
    return Answer{bytes, SIZE_MAX, true};
  };
  const std::string challenge = "WWW-Authenticate: Basic realm=\"r\"\r\n";
  const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  const std::string gzip = "Content-Encoding: gzip\r\n";
  const std::string binary("\0\xff\n", 3);
  return {
      {"found", {httpAnswer(200, kTable)}, 200, kTable},
      {"not found", {httpAnswer(404, kTable)}, 404, kTable},
      {"locked", {httpAnswer(401, kTable, challenge)}, 401, kTable},
      {"locked by a proxy", {httpAnswer(407, kTable)}, 407, kTable},
      {"error page", {httpAnswer(500, "<html>500</html>")}, 500, "<html>500</html>"},
      {"choices", {httpAnswer(300, kTable)}, 300, kTable},
      {"dribbled", {httpAnswer(200, kTable), 1}, 200, kTable},
      {"empty", {httpAnswer(200, "")}, 200, ""},
      {"no content", {"HTTP/1.1 204 No Content\r\n\r\n"}, 204},
      {"not modified", {"HTTP/1.1 304 Same\r\nContent-Length: 9\r\n\r\n"}, 304},
      {"until the end", {"HTTP/1.1 200 OK\r\n\r\n" + kTable, SIZE_MAX, true}, 200, kTable},
      {"chunked", {chunked + "5\r\n{\"a\":\r\n3\r\n{}}\r\n0\r\n\r\n", 7}, 200, R"({"a":{}})"},
      {"gzip", {httpAnswer(200, kPacked, gzip), 9}, 200, R"({"labels":{"hint":"packed"}})"},
      {"no text", {httpAnswer(200, binary)}, 200, binary},
      {"cut in the body", cut(200)},
      {"cut in an error's body", cut(404)},
      {"redirect to nowhere", {httpAnswer(302, kTable)}},
      {"cut in the head", {"HTTP/1.1 200 OK\r\nContent-", SIZE_MAX, true}},
      {"broken gzip", {httpAnswer(200, "plain", gzip)}},
      {"no HTTP at all", {"SSH-2.0-server\r\n\r\n", SIZE_MAX, true}},
  };
}

TEST_F(ConcurrentUrlSession, AnswersAreAnswersWhateverTheirStatusAndBrokenOnesAreErrors) {
  const auto table = cases();
  std::vector<Fetch> fetches;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const std::string path = "/" + std::to_string(i);
    server.serve(path, table[i].answer);
    fetches.emplace_back(transport, server.base() + path);
  }
  for (std::size_t i = 0; i < table.size(); ++i) {
    SCOPED_TRACE(table[i].name);
    const auto [response, thread] = fetches[i].wait();
    EXPECT_EQ(response.status, table[i].status);
    EXPECT_EQ(response.body, table[i].body);
    EXPECT_EQ(response.error ? response.error->domain : "", table[i].status ? "" : "URLSession");
    EXPECT_NE(thread, std::this_thread::get_id());
  }
  fetch("/0");  // whatever else the first requests had to say would have come before this
}

Answer redirect(const std::string& place) {
  return {httpAnswer(302, "moved", "Location: " + place + "\r\n")};
}

TEST_F(ConcurrentUrlSession, FollowsRedirectsOverHttpOnly) {
  server.serve("/table", {httpAnswer(200, kTable)});
  server.serve("/hop", redirect("/table"));
  server.serve("/two", redirect(server.base() + "/hop"));
  server.serve("/loop", redirect("/loop"));
  server.serve("/file", redirect("file:///etc/hostname"));
  server.serve("/data", redirect("data:text/plain,inside"));

  EXPECT_EQ(fetch("/hop").response.body, kTable);
  EXPECT_EQ(fetch("/two").response.body, kTable);
  EXPECT_EQ(errorOf(server.base() + "/loop"), QNetworkReply::TooManyRedirectsError);
  EXPECT_EQ(errorOf(server.base() + "/file"), QNetworkReply::ProtocolUnknownError);
  EXPECT_EQ(errorOf(server.base() + "/data"), QNetworkReply::ProtocolUnknownError);
}

TEST_F(ConcurrentUrlSession, KeepsToASecureConnection) {
  LoopbackServer secure(LoopbackServer::Scheme::https);
  secure.serve("/table", {httpAnswer(200, kTable)});
  secure.serve("/stay", redirect("/table"));
  secure.serve("/leave", redirect(server.base() + "/table"));
  server.serve("/table", {httpAnswer(200, kTable)});
  server.serve("/enter", redirect(secure.base() + "/table"));

  // Of another server, because Qt keeps to what it once found of one.
  const LoopbackServer untrusted(LoopbackServer::Scheme::https);
  EXPECT_EQ(errorOf(untrusted.base() + "/table"), QNetworkReply::SslHandshakeFailedError);
  const auto before = QSslConfiguration::defaultConfiguration();
  auto trusting = before;
  trusting.addCaCertificate(LoopbackServer::certificate());
  QSslConfiguration::setDefaultConfiguration(trusting);
  EXPECT_EQ(errorOf(secure.base() + "/table"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(secure.base() + "/stay"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(server.base() + "/enter"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(secure.base() + "/leave"), QNetworkReply::InsecureRedirectError);
  EXPECT_TRUE(server.requests("/table").empty());
  QSslConfiguration::setDefaultConfiguration(before);
}

TEST_F(ConcurrentUrlSession, SendsAPlainGetOfTheAddress) {
  const struct {
    std::string address, target;
  } table[] = {
      {"/es-MX.json", "/es-MX.json"},
      {"/a b.json?x=%26&y=1+2", "/a%20b.json?x=%26&y=1+2"},
      {"/100%.json", "/100%25.json"},
      {"/fragment#.json", "/fragment"},
  };
  for (const auto& [address, target] : table) {
    fetch(address);
    const auto requests = server.requests(target);
    ASSERT_EQ(requests.size(), 1u) << address;
    EXPECT_THAT(requests[0], ::testing::StartsWith("GET " + target + " HTTP/1.1"));
    EXPECT_THAT(requests[0], ::testing::Not(::testing::HasSubstr("Cache-Control")));
  }
}

TEST_F(ConcurrentUrlSession, RefusesWhatItCannotReachOrMayNotRead) {
  EXPECT_EQ(errorOf("http://127.0.0.1:" + unusedPort() + "/"),
            QNetworkReply::ConnectionRefusedError);
  for (const char* address :
       {"file:///etc/hostname", "data:text/plain,inside", "qrc:/qt-project.org/"}) {
    EXPECT_EQ(errorOf(address), QNetworkReply::ProtocolUnknownError) << address;
  }
}

TEST_F(ConcurrentUrlSession, GivesUpOnARequestThatStandsStill) {
  QtURLTransport impatient{std::chrono::milliseconds(100)};
  server.serve("/still", silence());
  const URLResponse response = Fetch(impatient, server.base() + "/still").wait().response;
  ASSERT_TRUE(response.error);
  EXPECT_EQ(response.error->code, QNetworkReply::OperationCanceledError);
}

TEST_F(ConcurrentUrlSession, ProtocolAnswersBeforeTheNetworkOnTheSessionsThread) {
  server.serve("/x", {httpAnswer(200, "network")});
  std::atomic<std::thread::id> ranOn;
  auto token = foundation::URLSession::shared().registerProtocol(
      [&](const URL& url) -> std::optional<URLResponse> {
        ranOn = std::this_thread::get_id();
        if (url.absoluteString().find("inside") == std::string::npos) return std::nullopt;
        return URLResponse{{}, "protocol", 0};
      });
  const auto [inside, thread] = Fetch(transport, server.base() + "/inside").wait();
  EXPECT_EQ(inside.body, "protocol");
  EXPECT_EQ(thread, ranOn.load());
  EXPECT_NE(thread, std::this_thread::get_id());
  const auto [outside, again] = fetch("/x");
  EXPECT_EQ(outside.body, "network");
  EXPECT_EQ(thread, again);  // one thread for all of them
  EXPECT_TRUE(server.requests("/inside").empty());
}

}  // namespace
}  // namespace quorix::testing
