#include "qt/network/HTTPExchange.h"

#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QSslSocket>
#include <optional>
#include <string_view>
#include <utility>

namespace quorix::qt {
namespace {

using foundation::HTTPResponseReader;
using foundation::URLResponse;
using State = HTTPResponseReader::State;

constexpr qint64 kPiece = 16 * 1024;  // read at a time

QNetworkReply::NetworkError networkError(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
      return QNetworkReply::ConnectionRefusedError;
    case QAbstractSocket::RemoteHostClosedError:
      return QNetworkReply::RemoteHostClosedError;
    case QAbstractSocket::HostNotFoundError:
      return QNetworkReply::HostNotFoundError;
    case QAbstractSocket::SocketTimeoutError:
      return QNetworkReply::TimeoutError;
    case QAbstractSocket::SslHandshakeFailedError:
    case QAbstractSocket::SslInternalError:
    case QAbstractSocket::SslInvalidUserDataError:
      return QNetworkReply::SslHandshakeFailedError;
    case QAbstractSocket::ProxyAuthenticationRequiredError:
      return QNetworkReply::ProxyAuthenticationRequiredError;
    case QAbstractSocket::ProxyConnectionRefusedError:
      return QNetworkReply::ProxyConnectionRefusedError;
    case QAbstractSocket::ProxyConnectionClosedError:
      return QNetworkReply::ProxyConnectionClosedError;
    case QAbstractSocket::ProxyConnectionTimeoutError:
      return QNetworkReply::ProxyTimeoutError;
    case QAbstractSocket::ProxyNotFoundError:
      return QNetworkReply::ProxyNotFoundError;
    case QAbstractSocket::ProxyProtocolError:
      return QNetworkReply::UnknownProxyError;
    default:
      return QNetworkReply::UnknownNetworkError;
  }
}

/// The first of the application's proxies that can carry the request, if there is one.
std::optional<QNetworkProxy> proxyFor(const QUrl& address, bool secure) {
  for (const auto& proxy : QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(address))) {
    const auto can = proxy.capabilities();
    if (proxy.type() == QNetworkProxy::NoProxy || can & QNetworkProxy::TunnelingCapability ||
        (!secure && proxy.type() == QNetworkProxy::HttpCachingProxy)) {
      return proxy;
    }
  }
  return std::nullopt;
}

bool speaksHTTP(const QNetworkProxy& proxy) {
  return proxy.type() == QNetworkProxy::HttpProxy ||
         proxy.type() == QNetworkProxy::HttpCachingProxy;
}

}  // namespace

URLResponse transportError(QNetworkReply::NetworkError code, const QString& text) {
  return {foundation::Error{"URLSession", code, text.toStdString()}, {}, 0};
}

HTTPExchange::HTTPExchange(QUrl address, Ended ended)
    : address_(std::move(address)), ended_(std::move(ended)) {}

HTTPExchange::~HTTPExchange() {
  if (socket_) socket_->disconnect(this);
}

// The proxy forwards plain requests, but only transports what goes through its tunnel.
bool HTTPExchange::isAskingProxy() const {
  return isThroughHTTPProxy() && (!isSecure() || step_ <= Step::openingTunnel);
}

bool HTTPExchange::isSecure() const { return address_.scheme() == QLatin1String("https"); }

void HTTPExchange::begin() {
  auto proxy = proxyFor(address_, isSecure());
  QString host = address_.host();
  int port = address_.port(isSecure() ? 443 : 80);
  if (proxy && speaksHTTP(*proxy)) {
    proxy_ = std::exchange(*proxy, QNetworkProxy::NoProxy);
    host = proxy_.hostName();
    port = proxy_.port();
  }
  const auto ended = [this](ConnectionRace::Socket socket, auto error, const QString& text) {
    race_.release()->deleteLater();  // it is the caller
    if (socket) {
      connected(std::move(socket));
    } else {
      fail(networkError(error), text);
    }
  };
  race_ = std::make_unique<ConnectionRace>(host, static_cast<quint16>(port), isSecure(),
                                           proxy.value_or(QNetworkProxy::NoProxy), ended);
  race_->begin();
}

void HTTPExchange::connected(ConnectionRace::Socket socket) {
  socket_ = std::move(socket);
  socket_->setReadBufferSize(kPiece);  // what is not read yet stays with the server
  connect(socket_.get(), &QTcpSocket::readyRead, this, [this] { receive(); });
  connect(socket_.get(), &QTcpSocket::errorOccurred, this, [this] { socketFailed(); });
  if (!isSecure()) {
    sendRequest();
  } else if (isThroughHTTPProxy()) {
    openTunnel();
  } else {
    encrypt();
  }
}

void HTTPExchange::openTunnel() {
  step_ = Step::openingTunnel;
  reader_.emplace(HTTPResponseReader::Body::none);
  QUrl server = address_.adjusted(QUrl::RemoveUserInfo);
  server.setPort(address_.port(443));
  const QByteArray authority = server.authority(QUrl::FullyEncoded).toLatin1();
  socket_->write("CONNECT " + authority + " HTTP/1.1\r\nHost: " + authority + "\r\n" +
                 proxyCredentials() + "\r\n");
}

void HTTPExchange::encrypt() {
  step_ = Step::encrypting;
  reader_.reset();
  auto& secure = static_cast<QSslSocket&>(*socket_);
  connect(&secure, &QSslSocket::encrypted, this, [this] { sendRequest(); });
  secure.setPeerVerifyName(address_.host());  // it was connected by an address
  secure.startClientEncryption();
}

void HTTPExchange::sendRequest() {
  step_ = Step::requesting;
  reader_.emplace();
  QUrl shown = address_.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
  if (shown.path().isEmpty()) shown.setPath(QStringLiteral("/"));
  QByteArray target = shown.path(QUrl::FullyEncoded).toLatin1();
  if (shown.hasQuery()) target += '?' + shown.query(QUrl::FullyEncoded).toLatin1();
  if (isAskingProxy()) target = shown.toEncoded();
  socket_->write("GET " + target +
                 " HTTP/1.1\r\nHost: " + shown.authority(QUrl::FullyEncoded).toLatin1() +
                 "\r\nUser-Agent: QuorixWidgets\r\nAccept: */*\r\nAccept-Encoding: gzip, "
                 "deflate\r\nConnection: close\r\n" +
                 (isAskingProxy() ? proxyCredentials() : QByteArray()) + "\r\n");
}

QByteArray HTTPExchange::proxyCredentials() const {
  if (proxy_.user().isEmpty()) return {};
  const QString credentials = proxy_.user() + ':' + proxy_.password();
  return "Proxy-Authorization: Basic " + credentials.toUtf8().toBase64() + "\r\n";
}

void HTTPExchange::receive() {
  while (socket_ && reader_ && socket_->bytesAvailable() > 0) {
    const QByteArray bytes = socket_->read(kPiece);
    advance(reader_->read({bytes.data(), static_cast<std::size_t>(bytes.size())}));
  }
}

void HTTPExchange::socketFailed() {
  receive();
  if (!socket_) return;
  if (socket_->error() == QAbstractSocket::RemoteHostClosedError && reader_) {
    advance(reader_->readEnd());
  } else {
    fail(networkError(socket_->error()), socket_->errorString());
  }
}

void HTTPExchange::advance(State state) {
  switch (state) {
    case State::incomplete:
      return;
    case State::complete:
      return answered();
    case State::cutShort:
      return fail(QNetworkReply::RemoteHostClosedError, QStringLiteral("the connection closed"));
    case State::malformed:
      return fail(QNetworkReply::ProtocolFailure, QStringLiteral("the answer is no valid HTTP"));
    case State::tooLarge:
      return fail(QNetworkReply::UnknownContentError, QStringLiteral("the answer is too large"));
    case State::undecodable:
      return fail(QNetworkReply::UnknownContentError,
                  QStringLiteral("the answer's compression is unknown or broken"));
  }
}

void HTTPExchange::answered() {
  const int status = reader_->status();
  if (isAskingProxy() && status == 407) {
    fail(QNetworkReply::ProxyAuthenticationRequiredError,
         QStringLiteral("the proxy asks for credentials"));
  } else if (step_ == Step::requesting) {
    end({{}, reader_->body(), status}, reader_->location());
  } else if (status / 100 == 2) {
    encrypt();
  } else {
    fail(QNetworkReply::ProxyConnectionRefusedError,
         QStringLiteral("the proxy opens no tunnel: status %1").arg(status));
  }
}

void HTTPExchange::fail(QNetworkReply::NetworkError code, const QString& text) {
  if (isAskingProxy() && code <= QNetworkReply::TimeoutError) {
    // A proxy's codes are in the order of a server's.
    constexpr int kShift =
        QNetworkReply::ProxyConnectionRefusedError - QNetworkReply::ConnectionRefusedError;
    code = static_cast<QNetworkReply::NetworkError>(code + kShift);
  }
  end(transportError(code, text));
}

void HTTPExchange::end(URLResponse response, const std::string& location) {
  if (socket_) {
    socket_->disconnect(this);
    socket_->abort();
    socket_.release()->deleteLater();  // it is the caller
  }
  ended_(std::move(response), location);
}

}  // namespace quorix::qt
