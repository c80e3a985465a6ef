#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/foundation/URLSession.h"

namespace quorix::qt {

/// A failure of the session's: domain "URLSession", one of Qt's codes.
foundation::URLResponse transportError(QNetworkReply::NetworkError code, const QString& text);

bool isHttp(const QUrl& url);

/// One GET over the wire, redirects included, whose answer goes to every task that has joined.
///
/// Bounded in size and in time: it fails when the body grows beyond `kBodyLimit`, after
/// `kRedirectLimit` redirects, and when the whole takes longer than its time limit. Lives on the
/// network thread.
class Transfer final : public QObject {
 public:
  using Ended = std::function<void(Transfer&, foundation::URLResponse)>;
  using Task = std::uint64_t;

  static constexpr qint64 kBodyLimit = 256 * 1024;  ///< in bytes, decompressed
  static constexpr int kRedirectLimit = 20;

  /// Calls `ended` once, unless it is destroyed first. `ended` may `deleteLater` the transfer.
  Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended);
  ~Transfer() override;

  const QUrl& address() const { return address_; }
  std::chrono::milliseconds timeLimit() const { return deadline_.intervalAsDuration(); }

  void join(Task task) { tasks_.push_back(task); }
  const std::vector<Task>& tasks() const { return tasks_; }

  /// Sends the request. The time limit counts from here.
  void begin(QNetworkAccessManager& network);
  bool hasBegun() const { return network_ != nullptr; }

 private:
  void send(const QUrl& url);
  void receive();
  void finish();
  void follow(const QUrl& target);
  void end(foundation::URLResponse response);
  void dropReply();
  foundation::URLResponse response() const;

  const QUrl address_;
  Ended ended_;
  QTimer deadline_;
  QElapsedTimer begun_;
  std::vector<Task> tasks_;
  QNetworkAccessManager* network_ = nullptr;
  QNetworkReply* reply_ = nullptr;
  QByteArray body_;
  int redirects_ = 0;
};

}  // namespace quorix::qt
