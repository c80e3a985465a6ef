#include "qt/Transfer.h"

#include <QLoggingCategory>
#include <QMetaEnum>
#include <QNetworkRequest>
#include <optional>
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

// Qt reports an HTTP status of 400 and above as an error as well. These are the errors that it
// makes of a status: the content and the server groups whole, and one each for 400 and 407.
bool standsForStatus(QNetworkReply::NetworkError error) {
  return (error >= QNetworkReply::ContentAccessDenied &&
          error <= QNetworkReply::UnknownContentError) ||
         (error >= QNetworkReply::InternalServerError &&
          error <= QNetworkReply::UnknownServerError) ||
         error == QNetworkReply::ProtocolInvalidOperationError ||
         error == QNetworkReply::ProxyAuthenticationRequiredError;
}

bool isEncoded(const QNetworkReply& reply) { return reply.hasRawHeader("Content-Encoding"); }

// Qt has the same code for a compressed body that it could not or would not unpack and for some
// statuses. Both count as broken here: part of a body must not pass for the whole.
bool isUnpackingError(const QNetworkReply& reply) {
  return reply.error() == QNetworkReply::UnknownContentError && isEncoded(reply);
}

bool isAnswer(const QNetworkReply& reply, int status) {
  const auto error = reply.error();
  if (error == QNetworkReply::NoError) return true;
  return status >= 400 && standsForStatus(error) && !isUnpackingError(reply);
}

bool hasNoBody(int status) { return status == 204 || status == 304; }

// Qt takes a connection that closes too early for the end of the answer when the close and the last
// bytes arrive in one go. (An answer in chunks, which have no length to compare, then passes for
// whole, and its reader finds out.)
bool isCutShort(const QNetworkReply& reply, qsizetype received) {
  return !isEncoded(reply) &&
         received < reply.header(QNetworkRequest::ContentLengthHeader).toLongLong();
}

/// Where an answer sends the client, if it is a redirect and says where to.
std::optional<QUrl> redirectTarget(const QNetworkReply& reply) {
  if (reply.error() != QNetworkReply::NoError) return std::nullopt;
  switch (reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt()) {
    case 301:
    case 302:
    case 303:
    case 307:
    case 308:
      break;
    default:
      return std::nullopt;
  }
  const QUrl location(QString::fromUtf8(reply.rawHeader("Location")));
  if (location.isEmpty() || !location.isValid()) return std::nullopt;
  return reply.url().resolved(location);
}

}  // namespace

URLResponse transportError(QNetworkReply::NetworkError code, const QString& text) {
  return {foundation::Error{"URLSession", code, text.toStdString()}, {}, 0};
}

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

Transfer::~Transfer() { dropReply(); }

void Transfer::begin(QNetworkAccessManager& network) {
  network_ = &network;
  deadline_.start();
  begun_.start();
  send(address_);
}

void Transfer::send(const QUrl& url) {
  QNetworkRequest request(url);
  // Redirects are followed here: Qt would keep back a redirect's body and fail without a Location.
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                       QNetworkRequest::ManualRedirectPolicy);
  // Qt measures compressed data before it can be read; this stops it where we would.
  request.setDecompressedSafetyCheckThreshold(kBodyLimit);
  reply_ = network_->get(request);
  reply_->setReadBufferSize(kBodyLimit + 1);  // so that not much more than the limit is received
  connect(reply_, &QNetworkReply::readyRead, this, [this] { receive(); });
  connect(reply_, &QNetworkReply::finished, this, [this] { finish(); });
}

void Transfer::receive() {
  body_ += reply_->read(kBodyLimit + 1 - body_.size());
  if (body_.size() <= kBodyLimit) return;
  end(transportError(QNetworkReply::UnknownContentError,
                     QStringLiteral("the answer is too large")));
}

void Transfer::finish() {
  receive();
  if (!reply_) return;  // too large
  if (const auto target = redirectTarget(*reply_)) {
    follow(*target);
  } else {
    end(response());
  }
}

void Transfer::follow(const QUrl& target) {
  const bool secure = reply_->url().scheme() == QLatin1String("https");
  if (++redirects_ > kRedirectLimit) {
    end(transportError(QNetworkReply::TooManyRedirectsError, QStringLiteral("too many redirects")));
  } else if (!isHttp(target)) {
    end(transportError(QNetworkReply::ProtocolUnknownError,
                       QStringLiteral("the redirect leads to neither http nor https")));
  } else if (secure && target.scheme() != QLatin1String("https")) {
    end(transportError(QNetworkReply::InsecureRedirectError,
                       QStringLiteral("the redirect leads from https to http")));
  } else {
    dropReply();
    body_.clear();
    send(target);
  }
}

void Transfer::end(URLResponse response) {
  qCInfo(networkLog).noquote() << "GET" << loggedAddress(address_) << outcome(response)
                               << begun_.elapsed() << "ms" << body_.size() << "bytes";
  deadline_.stop();
  dropReply();
  ended_(*this, std::move(response));
}

void Transfer::dropReply() {
  if (!reply_) return;
  reply_->disconnect(this);
  // Deleting it is not enough: requests that wait in Qt for its connection would go on waiting.
  if (reply_->isRunning()) reply_->abort();
  std::exchange(reply_, nullptr)->deleteLater();
}

URLResponse Transfer::response() const {
  const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (!isAnswer(*reply_, status)) return transportError(reply_->error(), reply_->errorString());
  if (hasNoBody(status)) return {{}, {}, status};
  if (isCutShort(*reply_, body_.size())) {
    return transportError(QNetworkReply::RemoteHostClosedError,
                          QStringLiteral("Connection closed"));
  }
  return {{}, body_.toStdString(), status};
}

}  // namespace quorix::qt
