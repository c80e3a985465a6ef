#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/foundation/URLSession.h"
#include "qt/HTTPExchange.h"

namespace quorix::qt {

bool isHttp(const QUrl& url);

/// One GET over the wire, redirects included, whose answer goes to every task that has joined.
///
/// Bounded in size and in time: each answer has the limits of `HTTPResponseReader`, and the whole
/// fails after `kRedirectLimit` redirects or its time limit. Lives on the network thread.
class Transfer final : public QObject {
 public:
  using Ended = std::function<void(Transfer&, foundation::URLResponse)>;
  using Task = std::uint64_t;

  static constexpr int kRedirectLimit = 20;

  /// Calls `ended` once, unless it is destroyed first. `ended` may `deleteLater` the transfer.
  Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended);

  const QUrl& address() const { return address_; }
  std::chrono::milliseconds timeLimit() const { return deadline_.intervalAsDuration(); }

  void join(Task task) { tasks_.push_back(task); }
  const std::vector<Task>& tasks() const { return tasks_; }

  /// Sends the request. The time limit counts from here.
  void begin();
  bool hasBegun() const { return begun_.isValid(); }

 private:
  void send(const QUrl& url);
  void answered(foundation::URLResponse response, const std::string& location);
  void follow(const QUrl& from, const QUrl& target);
  void end(foundation::URLResponse response);

  const QUrl address_;
  Ended ended_;
  QTimer deadline_;
  QElapsedTimer begun_;
  std::vector<Task> tasks_;
  std::unique_ptr<HTTPExchange> exchange_;
  int redirects_ = 0;
};

}  // namespace quorix::qt
