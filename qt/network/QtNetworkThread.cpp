#include "qt/network/QtNetworkThread.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QLoggingCategory>
#include <QMetaEnum>
#include <QNetworkProxy>
#include <QNetworkProxyFactory>
#include <QNetworkProxyQuery>
#include <QNetworkReply>
#include <QSslSocket>
#include <QThread>
#include <optional>
#include <utility>

#include "platform/foundation/HTTPConversation.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

using foundation::HTTPConversation;
using foundation::HTTPProxy;
using foundation::URLError;
using foundation::URLResponse;

constexpr qint64 kPiece = 16 * 1024;  // read at a time

constexpr std::pair<QAbstractSocket::SocketError, URLError> kErrors[] = {
    {QAbstractSocket::ConnectionRefusedError, URLError::connectionRefused},
    {QAbstractSocket::RemoteHostClosedError, URLError::connectionClosed},
    {QAbstractSocket::HostNotFoundError, URLError::hostNotFound},
    {QAbstractSocket::SocketTimeoutError, URLError::timedOut},
    {QAbstractSocket::SslHandshakeFailedError, URLError::handshakeFailed},
    {QAbstractSocket::SslInternalError, URLError::handshakeFailed},
    {QAbstractSocket::SslInvalidUserDataError, URLError::handshakeFailed},
    {QAbstractSocket::ProxyAuthenticationRequiredError, URLError::proxyAuthenticationRequired},
    {QAbstractSocket::ProxyConnectionRefusedError, URLError::proxyConnectionRefused},
    {QAbstractSocket::ProxyConnectionClosedError, URLError::proxyConnectionClosed},
    {QAbstractSocket::ProxyConnectionTimeoutError, URLError::proxyTimedOut},
    {QAbstractSocket::ProxyNotFoundError, URLError::proxyNotFound},
    {QAbstractSocket::ProxyProtocolError, URLError::unknownProxyError},
};

URLError urlError(QAbstractSocket::SocketError error) {
  for (const auto& [each, neutral] : kErrors) {
    if (each == error) return neutral;
  }
  return URLError::unknown;
}

bool isSecure(const QUrl& address) { return address.scheme() == QLatin1String("https"); }

/// The first of the application's proxies that can carry the request, if there is one.
QNetworkProxy proxyFor(const QUrl& address) {
  for (const auto& proxy : QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(address))) {
    const auto can = proxy.capabilities();
    if (proxy.type() == QNetworkProxy::NoProxy || can & QNetworkProxy::TunnelingCapability ||
        (!isSecure(address) && proxy.type() == QNetworkProxy::HttpCachingProxy)) {
      return proxy;
    }
  }
  return QNetworkProxy::NoProxy;
}

/// The proxy as the conversation sees it. Absent for other kinds, which the socket handles.
std::optional<HTTPProxy> httpProxy(const QNetworkProxy& proxy) {
  if (proxy.type() != QNetworkProxy::HttpProxy && proxy.type() != QNetworkProxy::HttpCachingProxy) {
    return std::nullopt;
  }
  if (proxy.user().isEmpty()) return HTTPProxy{};
  const QString credentials = proxy.user() + ':' + proxy.password();
  return HTTPProxy{credentials.toUtf8().toBase64().toStdString()};
}

/// One line for each request that went over the network. Silent unless the host's developer asks
/// with QT_LOGGING_RULES="quorix.network=true".
Q_LOGGING_CATEGORY(networkLog, "quorix.network", QtWarningMsg)

/// Without the query and the user's name, which may hold a token.
QByteArray loggedAddress(const QUrl& address) {
  return address.toEncoded(QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::RemoveUserInfo);
}

/// The status of an answer, else the error's name: its text may quote the address.
QByteArray outcome(const URLResponse& response) {
  if (!response.error) return QByteArray::number(response.status);
  const auto names = QMetaEnum::fromType<QNetworkReply::NetworkError>();
  return names.valueToKey(static_cast<int>(response.error->code));
}

/// One GET over the network and its redirects, each on a connection of its own. Sends no cookies
/// and no credentials to the server. Uses the application's proxies and default SSL configuration.
/// Connects to IPv4 addresses first, then to any: Qt waits up to 30 seconds for each address, and
/// where one family is broken, it is mostly IPv6.
///
/// Each answer has the limits of `HTTPResponseReader`. The time limit is for all of them together.
/// Lives on the network thread.
class Transfer final : public QObject {
 public:
  using Ended = foundation::URLTransport::Completion;

  /// Sends the request to `address`, one of http or https. Calls `ended` once on a later turn,
  /// unless the transfer is destroyed first. `ended` may destroy it.
  Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended);
  ~Transfer() override;

 private:
  void timerEvent(QTimerEvent* event) override;  // the time limit
  void connectTo(const QUrl& address, bool again = false);
  void connected();
  void receive();
  void socketFailed();
  void proceed(const foundation::HTTPConversation::Step& step);
  void encrypt();
  void answered();
  void hangUp();
  void end(foundation::URLResponse response);

  const QUrl address_;
  Ended ended_;  // null after the end
  QElapsedTimer begun_;
  int redirects_ = 0;

  // For the current address: the first one or that of the latest redirect.
  QUrl current_;
  std::optional<foundation::HTTPConversation> conversation_;
  std::unique_ptr<QTcpSocket> socket_;
  bool hasMoreAddresses_ = false;  // to connect to
};

Transfer::Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended)
    : address_(std::move(address)), ended_(std::move(ended)) {
  begun_.start();
  startTimer(timeLimit);
  QMetaObject::invokeMethod(
      this, [this] { connectTo(address_); }, Qt::QueuedConnection);
}

Transfer::~Transfer() {
  if (socket_) socket_->disconnect(this);
}

void Transfer::timerEvent(QTimerEvent*) {
  end(foundation::failure(URLError::timedOut, "the request took too long"));
}

void Transfer::connectTo(const QUrl& address, bool again) {
  if (!address.isValid() || address.host().isEmpty()) {
    return end(foundation::failure(URLError::hostNotFound, "the address names no server"));
  }
  current_ = address;
  const QNetworkProxy proxy = proxyFor(current_);
  const auto asked = httpProxy(proxy);
  const QByteArray sent = current_.toEncoded(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
  conversation_.emplace(sent.toStdString(), asked);
  const bool secure = isSecure(current_);
  socket_.reset(secure ? new QSslSocket : new QTcpSocket);
  socket_->setReadBufferSize(kPiece);  // beyond that, the server has to wait
  connect(socket_.get(), &QTcpSocket::connected, this, [this] { connected(); });
  connect(socket_.get(), &QTcpSocket::readyRead, this, [this] { receive(); });
  connect(socket_.get(), &QTcpSocket::errorOccurred, this, [this] { socketFailed(); });
  socket_->setProxy(asked ? QNetworkProxy::NoProxy : proxy);
  const QString host = asked ? proxy.hostName() : current_.host();
  const int port = asked ? proxy.port() : current_.port(secure ? 443 : 80);
  const bool byName =
      socket_->proxy().type() == QNetworkProxy::NoProxy && QHostAddress(host).isNull();
  hasMoreAddresses_ = byName && !again;
  socket_->connectToHost(
      host, static_cast<quint16>(port), QIODevice::ReadWrite,
      hasMoreAddresses_ ? QAbstractSocket::IPv4Protocol : QAbstractSocket::AnyIPProtocol);
}

void Transfer::connected() {
  hasMoreAddresses_ = false;
  proceed(conversation_->connected());
}

void Transfer::receive() {
  while (socket_ && conversation_->isReading() && socket_->bytesAvailable() > 0) {
    const QByteArray bytes = socket_->read(kPiece);
    proceed(conversation_->read({bytes.data(), static_cast<std::size_t>(bytes.size())}));
  }
}

void Transfer::socketFailed() {
  const auto* failed = socket_.get();
  receive();
  if (socket_.get() != failed) return;  // the answer was complete
  if (hasMoreAddresses_) {
    hangUp();
    return connectTo(current_, true);
  }
  const std::string text = socket_->errorString().toStdString();
  proceed(conversation_->failed(urlError(socket_->error()), text));
}

void Transfer::proceed(const HTTPConversation::Step& step) {
  if (!step.send.empty()) socket_->write(step.send.data(), static_cast<qint64>(step.send.size()));
  if (step.next == HTTPConversation::Next::encrypt) encrypt();
  if (step.next == HTTPConversation::Next::end) answered();
}

void Transfer::encrypt() {
  auto& secure = static_cast<QSslSocket&>(*socket_);
  connect(&secure, &QSslSocket::encrypted, this, [this] { proceed(conversation_->encrypted()); });
  secure.setPeerVerifyName(current_.host());  // the socket may only have a proxy's name
  secure.startClientEncryption();
}

void Transfer::answered() {
  hangUp();
  const QUrl target(QString::fromStdString(conversation_->redirect()));
  if (target.isEmpty() || !target.isValid()) return end(conversation_->response());
  const QUrl next = current_.resolved(target);
  const auto refusal = foundation::refuseRedirect(current_.scheme().toStdString(),
                                                  next.scheme().toStdString(), ++redirects_);
  refusal ? end(*refusal) : connectTo(next);
}

void Transfer::hangUp() {
  if (!socket_) return;
  socket_->disconnect(this);
  socket_->abort();
  socket_.release()->deleteLater();  // it may be the caller
}

void Transfer::end(URLResponse response) {
  hangUp();
  if (!ended_) return;
  qCInfo(networkLog).noquote() << "GET" << loggedAddress(address_) << outcome(response)
                               << begun_.elapsed() << "ms"
                               << (response.body ? response.body->size() : 0) << "bytes";
  QMetaObject::invokeMethod(
      this,
      [ended = std::exchange(ended_, {}), response = std::move(response)] { ended(response); },
      Qt::QueuedConnection);
}

class QtNetworkThread final : public QObject, public foundation::NetworkThread {
 public:
  QtNetworkThread() {
    thread_.setObjectName(QStringLiteral("quorix network"));
    moveToThread(&thread_);
    thread_.start();
  }

  void post(std::function<void()> work) override {
    QMetaObject::invokeMethod(this, std::move(work), Qt::QueuedConnection);
  }
  std::shared_ptr<void> fetch(const foundation::URL& url, std::chrono::milliseconds timeLimit,
                              foundation::URLTransport::Completion ended) override {
    return std::make_shared<Transfer>(toQUrl(url), timeLimit, std::move(ended));
  }
  void quit() override { thread_.quit(); }
  bool wait(std::chrono::steady_clock::time_point deadline) override {
    return QThread::currentThread() != &thread_ && thread_.wait(QDeadlineTimer(deadline));
  }

 private:
  QThread thread_;
};

}  // namespace

std::unique_ptr<foundation::NetworkThread> makeNetworkThread() {
  return std::make_unique<QtNetworkThread>();
}

}  // namespace quorix::qt
