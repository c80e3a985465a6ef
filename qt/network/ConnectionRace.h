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

/// Connects to a server at whichever of its addresses answers first.
///
/// The addresses are tried one after the other, a quarter of a second apart or as soon as one has
/// failed, and IPv6 and IPv4 take turns: an address that does not answer costs little time.
class ConnectionRace final : public QObject {
 public:
  using Socket = std::unique_ptr<QTcpSocket>;
  /// The connected socket, or none and why the last one failed.
  using Ended = std::function<void(Socket, QAbstractSocket::SocketError, const QString&)>;

  static constexpr std::chrono::milliseconds kHeadStart{250};

  /// A `secure` socket can be encrypted once it is connected. A proxy is asked for `host` by name.
  ConnectionRace(QString host, quint16 port, bool secure, QNetworkProxy proxy, Ended ended);

  /// Calls `ended` once, unless the race is destroyed first. `ended` must not destroy the race.
  void begin();

  /// The same, for a host whose addresses are known.
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
