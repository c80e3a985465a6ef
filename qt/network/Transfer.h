#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "platform/foundation/HTTPConversation.h"
#include "platform/foundation/URLSession.h"

namespace quorix::qt {

/// One GET over the network and its redirects, each on a connection of its own. Sends no cookies
/// and no credentials to the server. Uses the application's proxies and default SSL configuration.
/// Connects to IPv4 addresses first, then to any: Qt waits up to 30 seconds for each address, and
/// where one family is broken, it is mostly IPv6.
///
/// Each answer has the limits of `HTTPResponseReader`. The time limit is for all of them together.
/// Lives on the network thread.
class Transfer final : public QObject {
 public:
  using Ended = std::function<void(foundation::URLResponse)>;

  static bool namesServer(const QUrl& address) {
    return address.isValid() && !address.host().isEmpty();
  }

  /// `address` is one of http or https, and names a server.
  Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended);
  ~Transfer() override;

  /// Sends the request; the time limit counts from here. Calls `ended` once on a later turn, unless
  /// the transfer is destroyed first. `ended` must not destroy it; `deleteLater` is fine.
  void begin();

 private:
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
  Ended ended_;
  QTimer deadline_;
  QElapsedTimer begun_;
  int redirects_ = 0;

  // For the current address: the first one or that of the latest redirect.
  QUrl current_;
  std::optional<foundation::HTTPConversation> conversation_;
  std::unique_ptr<QTcpSocket> socket_;
  bool hasMoreAddresses_ = false;  // to connect to
};

}  // namespace quorix::qt
