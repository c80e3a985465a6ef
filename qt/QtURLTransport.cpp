#include "qt/QtURLTransport.h"

#include <utility>

#include "qt/NetworkThread.h"

namespace quorix::qt {

QtURLTransport::QtURLTransport(std::chrono::milliseconds timeLimit) : timeLimit_(timeLimit) {
  NetworkThread::shared();  // from here on it knows whether there is an application object
}

void QtURLTransport::start(const foundation::URL& url, Completion completion) {
  const QUrl address(QString::fromStdString(url.absoluteString()));
  NetworkThread::shared().perform({url, address, timeLimit_}, std::move(completion));
}

}  // namespace quorix::qt
