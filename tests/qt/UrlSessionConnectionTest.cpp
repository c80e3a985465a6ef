#include <netinet/in.h>
#include <sys/socket.h>

#include <QCoreApplication>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QTcpServer>
#include <cstdlib>
#include <semaphore>

#include "platform/graphics/FontManager.h"
#include "tests/qt/UrlSession.h"
#include "tests/qt/WaitUntil.h"

namespace quorix::testing {
namespace {

Answer redirect(const std::string& place) {
  return {httpAnswer(302, "moved", "Location: " + place + "\r\n")};
}

TEST_F(ConcurrentUrlSession, ReadsOverHttpOnlyAndFollowsRedirects) {
  server.serve("/table", {httpAnswer(200, kTable)});
  server.serve("/hop", redirect("/table"));
  server.serve("/two", redirect(server.base() + "/hop"));
  server.serve("/loop", redirect("/loop"));

  EXPECT_EQ(fetch("/two").response.body, kTable);
  expectErrors({
      {"http://127.0.0.1:1/", QNetworkReply::ConnectionRefusedError},
      {"http://127.0.0.1:99999/", QNetworkReply::HostNotFoundError},
      {server.base() + "/loop", QNetworkReply::TooManyRedirectsError},
  });
}

QSslConfiguration trustingTheServer() {
  auto configuration = QSslConfiguration::defaultConfiguration();
  configuration.addCaCertificate(LoopbackServer::certificate());
  return configuration;
}

TEST_F(ConcurrentUrlSession, KeepsToASecureConnection) {
  LoopbackServer secure(LoopbackServer::Scheme::https);
  secure.serve("/table", {httpAnswer(200, kTable)});
  secure.serve("/stay", redirect("/table"));
  secure.serve("/leave", redirect(server.base() + "/table"));
  server.serve("/table", {httpAnswer(200, kTable)});
  server.serve("/enter", redirect(secure.base() + "/table"));

  EXPECT_EQ(errorOf(secure.base() + "/table"), QNetworkReply::SslHandshakeFailedError);
  const auto before = QSslConfiguration::defaultConfiguration();
  QSslConfiguration::setDefaultConfiguration(trustingTheServer());
  EXPECT_EQ(errorOf(secure.base() + "/table"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(secure.base() + "/stay"), QNetworkReply::NoError);
  const std::string otherName = "https://localhost" + secure.base().substr(17);
  EXPECT_EQ(errorOf(otherName + "/table"), QNetworkReply::SslHandshakeFailedError);
  secure.serve("/until-the-end", {"HTTP/1.1 200 OK\r\n\r\n" + kTable, true});
  EXPECT_EQ(Fetch(secure.base() + "/until-the-end").wait().response.body, kTable);
  EXPECT_EQ(errorOf(server.base() + "/enter"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(secure.base() + "/leave"), QNetworkReply::InsecureRedirectError);
  EXPECT_TRUE(server.requests("/table").empty());
  QSslConfiguration::setDefaultConfiguration(before);
}

TEST_F(ConcurrentUrlSession, AsksTheApplicationsProxy) {
  LoopbackServer secure(LoopbackServer::Scheme::https);
  secure.serve("/table", {httpAnswer(200, kTable)});
  const std::string place = "secure.invalid:" + std::to_string(secure.port());
  server.serve(place, {"HTTP/1.1 200 OK\r\n\r\n", false, {}, secure.port()});
  server.serve("http://shop.invalid/?x", {httpAnswer(200, kTable)});

  const auto before = QNetworkProxy::applicationProxy();
  const auto trustingNobody = QSslConfiguration::defaultConfiguration();
  QSslConfiguration::setDefaultConfiguration(trustingTheServer());
  QNetworkProxy::setApplicationProxy(
      {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), server.port(), QStringLiteral("me")});
  EXPECT_EQ(Fetch("https://" + place + "/table").wait().response.body, kTable);
  EXPECT_EQ(Fetch("http://shop.invalid?x").wait().response.body, kTable);
  const auto credentials = ::testing::HasSubstr("Proxy-Authorization: Basic bWU6\r\n");
  EXPECT_THAT(server.requests(place), ::testing::ElementsAre(credentials));
  EXPECT_THAT(server.requests("http://shop.invalid/?x"), ::testing::ElementsAre(credentials));
  EXPECT_THAT(secure.requests("/table"), ::testing::ElementsAre(::testing::Not(credentials)));
  const std::string endless = "HTTP/1.1 200 OK\r\n";
  server.serve("endless.invalid:443", {endless, false, std::string(64 << 10, 'x')});
  expectErrors({
      {"https://unknown.invalid/", QNetworkReply::ProxyConnectionRefusedError},
      {"https://endless.invalid/", QNetworkReply::UnknownContentError},
      {"http:shop.invalid", QNetworkReply::HostNotFoundError},
  });
  QNetworkProxy::setApplicationProxy(before);
  QSslConfiguration::setDefaultConfiguration(trustingNobody);
}

TEST_F(ConcurrentUrlSession, ConnectsToAServerThatHasOnlyIPv6) {
  QTcpServer ipv6;
  if (!ipv6.listen(QHostAddress::LocalHostIPv6)) GTEST_SKIP() << "this machine has no IPv6";
  QObject::connect(&ipv6, &QTcpServer::newConnection, &ipv6, [&ipv6] {
    ipv6.nextPendingConnection()->write(QByteArray::fromStdString(httpAnswer(200, kTable)));
  });
  Fetch fetch("http://[::1]:" + std::to_string(ipv6.serverPort()));
  ASSERT_TRUE(waitUntil([&] { return fetch.isDone(); }));
  EXPECT_EQ(fetch.wait().response.body, kTable);
}

/// Accepts requests and answers none. Uses no thread and nothing of Qt, which ends in the meantime.
class SilentServer {
 public:
  SilentServer() {
    socklen_t size = sizeof(address_);
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* const address = reinterpret_cast<sockaddr*>(&address_);
    const bool listens = ::bind(socket_, address, size) == 0 && ::listen(socket_, 1) == 0 &&
                         ::getsockname(socket_, address, &size) == 0;
    if (!listens) std::abort();
  }

  std::string base() const {
    return "http://127.0.0.1:" + std::to_string(ntohs(address_.sin_port));
  }

  /// Waits for the next request. Its connection stays open.
  bool hears() const {
    char first = 0;
    return ::recv(::accept(socket_, nullptr, nullptr), &first, 1, 0) == 1;
  }

 private:
  int socket_ = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address_{};
};

/// A protocol that does not return in time is abandoned, with its thread.
[[noreturn]] void endTheApplication() {
  std::binary_semaphore blocked(0), release(0);
  const auto protocol =
      foundation::URLSession::shared().registerProtocol([&](const foundation::URL& url) {
        if (url.path() == "/block") {
          blocked.release();
          release.acquire();
        }
        return std::nullopt;
      });
  qt::installEngine();
  const SilentServer server;
  std::vector<Fetch> pending;
  pending.emplace_back(server.base() + "/still");
  bool passed = server.hears();
  pending.emplace_back(server.base() + "/block");
  blocked.acquire();
  delete QCoreApplication::instance();
  for (const Fetch& fetch : pending) passed = passed && fetch.isDone();
  pending.emplace_back(server.base() + "/without");
  for (Fetch& fetch : pending) {
    passed = passed && fetch.error() == QNetworkReply::OperationCanceledError;
  }

  int argc = 0;
  QCoreApplication next(argc, nullptr);
  {
    LoopbackServer answering;
    answering.serve("/x", {httpAnswer(200, "answer")});
    passed = passed && Fetch(answering.base() + "/x").wait().response.body == "answer";
  }
  // Qt's font database needs a QGuiApplication.
  passed = passed && !graphics::FontManager::shared().knows("Unknown-Face");
  release.release();
  const Fetch atTheEnd(server.base() + "/still");
  passed = passed && server.hears();
  std::exit(passed ? 0 : 1);
}

// Ends the application, so it needs its own process, which exits during a request.
TEST(ConcurrentUrlSessionDeathTest, EndsWithTheApplicationAndBeginsAnewWithTheNext) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(endTheApplication(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quorix::testing
