#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <QTcpServer>
#include <string>

#include "tests/qt/UrlSession.h"

namespace quorix::testing {
namespace {

std::string unusedPort() {
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  return std::to_string(server.serverPort());
}

TEST_F(ConcurrentUrlSession, RefusesWhatItCannotReachOrMayNotRead) {
  EXPECT_EQ(errorOf("http://127.0.0.1:" + unusedPort() + "/"),
            QNetworkReply::ConnectionRefusedError);
  for (const char* address :
       {"file:///etc/hostname", "data:text/plain,inside", "qrc:/qt-project.org/"}) {
    EXPECT_EQ(errorOf(address), QNetworkReply::ProtocolUnknownError) << address;
  }
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
  secure.serve("/until-the-end", {"HTTP/1.1 200 OK\r\n\r\n" + kTable, SIZE_MAX, true});
  EXPECT_EQ(Fetch(transport, secure.base() + "/until-the-end").wait().response.body, kTable);
  EXPECT_EQ(errorOf(server.base() + "/enter"), QNetworkReply::NoError);
  EXPECT_EQ(errorOf(secure.base() + "/leave"), QNetworkReply::InsecureRedirectError);
  EXPECT_TRUE(server.requests("/table").empty());
  QSslConfiguration::setDefaultConfiguration(before);
}

TEST_F(ConcurrentUrlSession, AsksTheApplicationsProxy) {
  LoopbackServer secure(LoopbackServer::Scheme::https);
  secure.serve("/table", {httpAnswer(200, kTable)});
  const std::string place = "secure.invalid:" + std::to_string(secure.port());
  server.serve(place, {"HTTP/1.1 200 OK\r\n\r\n", SIZE_MAX, false, {}, secure.port()});
  server.serve("http://shop.invalid/?x", {httpAnswer(200, kTable)});
  const std::string challenge = "Proxy-Authenticate: Basic realm=\"r\"\r\n";
  server.serve("http://closed.invalid/", {httpAnswer(407, kTable, challenge)});
  server.serve("closed.invalid:443", {httpAnswer(407, kTable, challenge)});
  const std::string endless = "HTTP/1.1 200 OK\r\n";
  server.serve("endless.invalid:443", {endless, SIZE_MAX, false, std::string(64 << 10, 'x')});

  const auto before = QNetworkProxy::applicationProxy();
  const auto trustingNobody = QSslConfiguration::defaultConfiguration();
  QSslConfiguration::setDefaultConfiguration(trustingTheServer());
  QNetworkProxy::setApplicationProxy(
      {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), server.port(), QStringLiteral("me")});
  EXPECT_EQ(Fetch(transport, "https://" + place + "/table").wait().response.body, kTable);
  EXPECT_EQ(Fetch(transport, "http://shop.invalid?x").wait().response.body, kTable);
  const auto credentials = ::testing::HasSubstr("Proxy-Authorization: Basic bWU6\r\n");
  EXPECT_THAT(server.requests(place), ::testing::ElementsAre(credentials));
  EXPECT_THAT(server.requests("http://shop.invalid/?x"), ::testing::ElementsAre(credentials));
  EXPECT_THAT(secure.requests("/table"), ::testing::ElementsAre(::testing::Not(credentials)));
  const struct {
    const char* address;
    QNetworkReply::NetworkError error;
  } refused[] = {
      {"http://closed.invalid/", QNetworkReply::ProxyAuthenticationRequiredError},
      {"https://closed.invalid/", QNetworkReply::ProxyAuthenticationRequiredError},
      {"https://unknown.invalid/", QNetworkReply::ProxyConnectionRefusedError},
      {"https://endless.invalid/", QNetworkReply::UnknownContentError},
  };
  for (const auto& [address, error] : refused) EXPECT_EQ(errorOf(address), error) << address;
  QNetworkProxy::setApplicationProxy(before);
  QSslConfiguration::setDefaultConfiguration(trustingNobody);
}

}  // namespace
}  // namespace quorix::testing
