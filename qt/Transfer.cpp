#include "qt/Transfer.h"

#include <QLoggingCategory>
#include <QMetaEnum>
#include <optional>
#include <string>
#include <utility>

namespace quorix::qt {
namespace {

using foundation::URLResponse;

/// One line for each request that went over the network. Silent unless the host's developer asks
/// with QT_LOGGING_RULES="quorix.network=true".
const QLoggingCategory& networkLog() {
  static const QLoggingCategory category("quorix.network", QtWarningMsg);
  return category;
}

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

/// Where an answer sends the client, if it is a redirect and says where to.
std::optional<QUrl> redirectTarget(const URLResponse& response, const std::string& location) {
  switch (response.status) {
    case 301:
    case 302:
    case 303:
    case 307:
    case 308:
      break;
    default:
      return std::nullopt;
  }
  const QUrl target(QString::fromStdString(location));
  if (target.isEmpty() || !target.isValid()) return std::nullopt;
  return target;
}

}  // namespace

bool isHttp(const QUrl& url) {
  return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

Transfer::Transfer(QUrl address, std::chrono::milliseconds timeLimit, Ended ended)
    : address_(std::move(address)), ended_(std::move(ended)) {
  deadline_.setSingleShot(true);
  deadline_.setInterval(timeLimit);
  connect(&deadline_, &QTimer::timeout, this, [this] {
    end(transportError(QNetworkReply::TimeoutError, QStringLiteral("the request took too long")));
  });
}

void Transfer::begin() {
  deadline_.start();
  begun_.start();
  send(address_);
}

void Transfer::send(const QUrl& url) {
  exchange_ = std::make_unique<HTTPExchange>(
      url, [this](URLResponse response, const std::string& location) {
        answered(std::move(response), location);
      });
  exchange_->begin();
}

void Transfer::answered(URLResponse response, const std::string& location) {
  const QUrl from = exchange_->address();
  exchange_.release()->deleteLater();  // it is the caller
  if (const auto target = redirectTarget(response, location)) {
    follow(from, from.resolved(*target));
  } else {
    end(std::move(response));
  }
}

void Transfer::follow(const QUrl& from, const QUrl& target) {
  const bool secure = from.scheme() == QLatin1String("https");
  if (++redirects_ > kRedirectLimit) {
    end(transportError(QNetworkReply::TooManyRedirectsError, QStringLiteral("too many redirects")));
  } else if (!isHttp(target)) {
    end(transportError(QNetworkReply::ProtocolUnknownError,
                       QStringLiteral("the redirect leads to neither http nor https")));
  } else if (secure && target.scheme() != QLatin1String("https")) {
    end(transportError(QNetworkReply::InsecureRedirectError,
                       QStringLiteral("the redirect leads from https to http")));
  } else {
    send(target);
  }
}

void Transfer::end(URLResponse response) {
  qCInfo(networkLog).noquote() << "GET" << loggedAddress(address_) << outcome(response)
                               << begun_.elapsed() << "ms"
                               << (response.body ? response.body->size() : 0) << "bytes";
  deadline_.stop();
  exchange_.reset();
  ended_(*this, std::move(response));
}

}  // namespace quorix::qt
