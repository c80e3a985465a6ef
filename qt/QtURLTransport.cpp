#include "qt/QtURLTransport.h"

#include <utility>

#include "qt/NetworkThread.h"

namespace quorix::qt {
namespace {

QUrl parse(std::string_view text) {
  return QUrl(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

QString originOf(const QUrl& url) {
  const int usualPort = url.scheme() == QLatin1String("https") ? 443 : 80;
  return url.scheme() + QLatin1String("://") + url.host() + QLatin1Char(':') +
         QString::number(url.port(usualPort));
}

}  // namespace

QtURLTransport::QtURLTransport(std::chrono::milliseconds timeLimit) : timeLimit_(timeLimit) {
  NetworkThread::shared();  // from here on it knows whether there is an application object
}

void QtURLTransport::start(const foundation::URL& url, Completion completion) {
  NetworkThread::shared().perform({url, addressOf(url), timeLimit_}, std::move(completion));
}

void QtURLTransport::redirectOrigin(std::string_view origin, std::string_view base) {
  const std::scoped_lock lock(mutex_);
  standIns_[originOf(parse(origin))] = parse(base);
}

QUrl QtURLTransport::addressOf(const foundation::URL& url) const {
  QUrl address = parse(url.absoluteString());
  const std::scoped_lock lock(mutex_);
  const auto standIn = standIns_.find(originOf(address));
  if (standIn == standIns_.end()) return address;
  address.setScheme(standIn->second.scheme());
  address.setHost(standIn->second.host());
  address.setPort(standIn->second.port());
  return address;
}

}  // namespace quorix::qt
