#include "qt/network/ConnectionRace.h"

#include <QHostInfo>
#include <QSslSocket>
#include <algorithm>
#include <utility>

#include "platform/foundation/TransferRules.h"

namespace quorix::qt {
namespace {

ConnectionRace::Socket makeSocket(bool secure) {
  if (secure) return std::make_unique<QSslSocket>();
  return std::make_unique<QTcpSocket>();
}

}  // namespace

ConnectionRace::ConnectionRace(QString host, quint16 port, bool secure, QNetworkProxy proxy,
                               Ended ended)
    : host_(std::move(host)),
      port_(port),
      secure_(secure),
      proxy_(std::move(proxy)),
      ended_(std::move(ended)) {
  headStart_.setSingleShot(true);
  connect(&headStart_, &QTimer::timeout, this, [this] { connectNext(); });
}

void ConnectionRace::begin() {
  if (proxy_.type() != QNetworkProxy::NoProxy) {
    waiting_ = {host_.toStdString()};
    headStart_.start(0);
  } else if (const QHostAddress literal(host_); !literal.isNull()) {
    begin({literal});
  } else {
    QHostInfo::lookupHost(host_, this, [this](const QHostInfo& info) {
      if (info.addresses().isEmpty()) {
        ended_(nullptr, QAbstractSocket::HostNotFoundError, info.errorString());
      } else {
        begin(info.addresses());
      }
    });
  }
}

void ConnectionRace::begin(const QList<QHostAddress>& addresses) {
  for (const QHostAddress& address : addresses) {
    waiting_.push_back(address.toString().toStdString());
  }
  waiting_ = foundation::connectionOrder(waiting_);
  headStart_.start(0);  // on a later turn, because a socket may fail at once
}

void ConnectionRace::connectNext() {
  headStart_.stop();
  const QString address = QString::fromStdString(waiting_.front());
  waiting_.erase(waiting_.begin());
  if (!waiting_.empty()) headStart_.start(kHeadStart);
  QTcpSocket& socket = *sockets_.emplace_back(makeSocket(secure_));
  socket.setProxy(proxy_);
  connect(&socket, &QTcpSocket::connected, this, [this, &socket] { won(socket); });
  connect(&socket, &QTcpSocket::errorOccurred, this, [this, &socket] { failed(socket); });
  socket.connectToHost(address, port_);
}

void ConnectionRace::won(QTcpSocket& socket) {
  headStart_.stop();
  Socket winner = take(socket);
  sockets_.clear();
  ended_(std::move(winner), QAbstractSocket::UnknownSocketError, {});
}

void ConnectionRace::failed(QTcpSocket& socket) {
  take(socket).release()->deleteLater();  // it is the caller
  if (!waiting_.empty()) {
    connectNext();
  } else if (sockets_.empty()) {
    ended_(nullptr, socket.error(), socket.errorString());
  }
}

ConnectionRace::Socket ConnectionRace::take(QTcpSocket& socket) {
  const auto found = std::ranges::find(sockets_, &socket, &Socket::get);
  Socket taken = std::move(*found);
  sockets_.erase(found);
  taken->disconnect(this);
  return taken;
}

}  // namespace quorix::qt
