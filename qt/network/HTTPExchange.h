#pragma once

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QTcpSocket>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/foundation/HTTPResponseReader.h"
#include "platform/foundation/URLSession.h"
#include "qt/network/ConnectionRace.h"

namespace quorix::qt {

/// A failure of the session's: domain "URLSession", one of Qt's codes.
foundation::URLResponse transportError(QNetworkReply::NetworkError code, const QString& text);

/// One GET on a connection of its own, and its answer. Follows no redirect and sends no cookies or
/// credentials for the server. Uses the application's proxy and its default SSL configuration.
class HTTPExchange final : public QObject {
 public:
  /// `location` is where the answer redirects, empty if it names no place.
  using Ended = std::function<void(foundation::URLResponse, const std::string& location)>;

  /// `address` is one of http or https.
  HTTPExchange(QUrl address, Ended ended);
  ~HTTPExchange() override;

  const QUrl& address() const { return address_; }

  /// Sends the request. Calls `ended` once on a later turn, unless the exchange is destroyed first.
  /// `ended` must not destroy it; `deleteLater` is fine.
  void begin();

 private:
  enum class Step { connecting, openingTunnel, encrypting, requesting };

  bool isSecure() const;
  bool isThroughHTTPProxy() const { return proxy_.type() != QNetworkProxy::NoProxy; }
  bool isAskingProxy() const;
  void connected(ConnectionRace::Socket socket);
  void openTunnel();
  void encrypt();
  void sendRequest();
  QByteArray proxyCredentials() const;
  void receive();
  void socketFailed();
  void advance(foundation::HTTPResponseReader::State state);
  void answered();
  void fail(QNetworkReply::NetworkError code, const QString& text);
  void end(foundation::URLResponse response, const std::string& location = {});

  const QUrl address_;
  Ended ended_;
  QNetworkProxy proxy_{QNetworkProxy::NoProxy};  // by HTTP; other kinds are the socket's matter
  Step step_ = Step::connecting;
  std::unique_ptr<ConnectionRace> race_;
  ConnectionRace::Socket socket_;
  std::optional<foundation::HTTPResponseReader> reader_;  // while an answer is expected
};

}  // namespace quorix::qt
