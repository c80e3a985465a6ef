#include "tests/qt/LoopbackServer.h"

#include <QEventLoop>
#include <QFile>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <future>
#include <memory>
#include <utility>

namespace quorix::testing {

std::string httpAnswer(int status, std::string_view body, std::string_view headers) {
  return "HTTP/1.1 " + std::to_string(status) +
         " Status\r\nContent-Length: " + std::to_string(body.size()) + "\r\n" +
         std::string(headers) + "\r\n" + std::string(body);
}

namespace {

QByteArray tlsFile(const char* name) {
  QFile file(QStringLiteral(TLS_FOLDER "/") + QLatin1String(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::unique_ptr<QTcpServer> makeServer(LoopbackServer::Scheme scheme) {
  if (scheme == LoopbackServer::Scheme::http) return std::make_unique<QTcpServer>();
  auto server = std::make_unique<QSslServer>();
  auto configuration = QSslConfiguration::defaultConfiguration();
  configuration.setLocalCertificate(LoopbackServer::certificate());
  configuration.setPrivateKey(QSslKey(tlsFile("loopback.key"), QSsl::Ec));
  server->setSslConfiguration(configuration);
  return server;
}

}  // namespace

/// A connection. It may carry several requests in sequence.
class LoopbackServer::Connection : public QObject {
 public:
  Connection(LoopbackServer& server, QTcpSocket* socket)
      : QObject(socket), server_(server), socket_(socket) {
    connect(socket, &QTcpSocket::readyRead, this, [this] { read(); });
    connect(socket, &QTcpSocket::bytesWritten, this,
            [this](qint64 bytes) { server_.bytesSent_ += static_cast<std::size_t>(bytes); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    read();  // data that arrived before the connection of the signal
  }

 private:
  void read() {
    if (tunnel_) {
      tunnel_->write(socket_->readAll());
      return;
    }
    head_ += socket_->readAll().toStdString();
    if (head_.find("\r\n\r\n") == std::string::npos) return;
    const auto from = head_.find(' ') + 1;
    const std::string path = head_.substr(from, head_.find(' ', from) - from);
    answer_ = server_.take(path, std::exchange(head_, {}));
    send(answer_.bytes);
  }

  void send(const std::string& bytes) {
    if (socket_->bytesToWrite() <= kBacklog) {
      socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
    if (!answer_.filler.empty()) {
      QTimer::singleShot(1, this, [this] { send(answer_.filler); });
    } else if (answer_.tunnelTo) {
      openTunnel();
    } else if (answer_.hangUp) {
      socket_->disconnectFromHost();
    }
  }

  void openTunnel() {
    tunnel_ = new QTcpSocket(this);
    tunnel_->setProxy(QNetworkProxy::NoProxy);
    connect(tunnel_, &QTcpSocket::readyRead, this, [this] { socket_->write(tunnel_->readAll()); });
    tunnel_->connectToHost(QHostAddress::LocalHost, answer_.tunnelTo);
  }

  static constexpr qint64 kBacklog = 1 << 20;  // in case the client does not read

  LoopbackServer& server_;
  QTcpSocket* socket_;
  QTcpSocket* tunnel_ = nullptr;
  std::string head_;
  Answer answer_;
};

LoopbackServer::LoopbackServer(Scheme scheme) : scheme_(scheme) {
  std::promise<void> listening;
  thread_ = std::thread([this, &listening] {
    QEventLoop loop;
    const auto server = makeServer(scheme_);
    server->listen(QHostAddress::LocalHost);
    QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, [this, &server] {
      while (QTcpSocket* socket = server->nextPendingConnection()) new Connection(*this, socket);
    });
    port_ = server->serverPort();
    loop_ = &loop;
    listening.set_value();
    loop.exec();
  });
  listening.get_future().wait();
}

LoopbackServer::~LoopbackServer() {
  QMetaObject::invokeMethod(loop_, "quit", Qt::QueuedConnection);
  thread_.join();
}

std::string LoopbackServer::base() const {
  return (scheme_ == Scheme::http ? "http" : "https") + ("://127.0.0.1:" + std::to_string(port_));
}

QSslCertificate LoopbackServer::certificate() { return QSslCertificate(tlsFile("loopback.crt")); }

void LoopbackServer::serve(const std::string& path, Answer answer) {
  const std::scoped_lock lock(mutex_);
  answers_[path] = std::move(answer);
}

std::vector<std::string> LoopbackServer::requests(const std::string& path) const {
  const std::scoped_lock lock(mutex_);
  const auto found = requests_.find(path);
  return found == requests_.end() ? std::vector<std::string>{} : found->second;
}

Answer LoopbackServer::take(const std::string& path, const std::string& head) {
  const std::scoped_lock lock(mutex_);
  requests_[path].push_back(head);
  const auto answer = answers_.find(path);
  return answer == answers_.end() ? Answer{httpAnswer(404, "")} : answer->second;
}

}  // namespace quorix::testing
