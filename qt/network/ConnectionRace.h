#pragma once

#include <QAbstractSocket>
#include <QHostAddress>
#include <QList>
#include <QNetworkProxy>
#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quorix::qt {

/// Connects to the first of a server's addresses that answers.
///
/// Tries them in their `connectionOrder`, the next one after a quarter of a second or as soon as
/// one has failed: an address that does not answer costs little time.
class ConnectionRace final : public QObject {
 public:
  using Socket = std::unique_ptr<QTcpSocket>;
  /// The connected socket, or null and the error of the last one.
  using Ended = std::function<void(Socket, QAbstractSocket::SocketError, const QString&)>;

  static constexpr std::chrono::milliseconds kHeadStart{250};

  /// With `secure` the socket is a `QSslSocket`, not encrypted yet. A proxy gets the name `host`.
  ConnectionRace(QString host, quint16 port, bool secure, QNetworkProxy proxy, Ended ended);

  /// Calls `ended` once, unless the race is destroyed first. `ended` must not destroy the race.
  void begin();

  /// The same with known addresses.
  void begin(const QList<QHostAddress>& addresses);

 private:
  void connectNext();
  void won(QTcpSocket& socket);
  void failed(QTcpSocket& socket);
  Socket take(QTcpSocket& socket);

  const QString host_;
  const quint16 port_;
  const bool secure_;
  const QNetworkProxy proxy_;
  Ended ended_;
  QTimer headStart_;
  std::vector<std::string> waiting_;  // addresses, or the host's name for a proxy
  std::vector<Socket> sockets_;
};

}  // namespace quorix::qt
