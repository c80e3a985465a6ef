#include "qt/NetworkThread.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <cstdlib>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace quorix::qt {
namespace {

using foundation::URLResponse;

URLResponse failure(QNetworkReply::NetworkError code, const QString& text) {
  return {foundation::Error{"URLSession", code, text.toStdString()}, {}, 0};
}

URLResponse cancelled() {
  return failure(QNetworkReply::OperationCanceledError,
                 QStringLiteral("the application has ended"));
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

bool hasNoBody(int status) { return status == 204 || status == 205 || status == 304; }

// Qt takes a connection that closes too early for the end of the answer when the close and the last
// bytes arrive in one go. (An answer in chunks, which have no length to compare, then passes for
// whole; whoever parses it has to notice.)
bool isCutShort(const QNetworkReply& reply, qsizetype received) {
  return !reply.hasRawHeader("Content-Encoding") &&
         received < reply.header(QNetworkRequest::ContentLengthHeader).toLongLong();
}

URLResponse responseOf(QNetworkReply& reply) {
  const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const auto error = reply.error();
  if (error != QNetworkReply::NoError && !(status >= 400 && standsForStatus(error))) {
    return failure(error, reply.errorString());
  }
  if (hasNoBody(status)) return {{}, {}, status};
  const QByteArray body = reply.readAll();
  if (isCutShort(reply, body.size())) {
    return failure(QNetworkReply::RemoteHostClosedError, QStringLiteral("Connection closed"));
  }
  return {{}, body.toStdString(), status};
}

bool isHttp(const QUrl& url) {
  return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

}  // namespace

// Never destroyed: other threads may still ask for something while the process ends.
NetworkThread& NetworkThread::instance() {
  static NetworkThread& thread = *new NetworkThread;
  return thread;
}

NetworkThread& NetworkThread::shared() {
  static const bool watching = [] {
    qAddPreRoutine(applicationBegins);  // at once when there is an application already
    std::atexit(applicationEnds);       // for a host that exits with its application still there
    return true;
  }();
  static_cast<void>(watching);
  return instance();
}

void NetworkThread::perform(Job job) {
  {
    const std::scoped_lock lock(mutex_);
    if (applicationAlive_) {
      jobs_.push_back(std::move(job));
      if (!thread_) startThread();
      QMetaObject::invokeMethod(
          receiver_.get(), [] { instance().performAll(); }, Qt::QueuedConnection);
      return;
    }
  }
  const auto end = [completion = std::move(job.completion)] { completion(cancelled()); };
  try {
    std::thread(end).detach();
  } catch (const std::system_error&) {
    end();  // no thread is to be had
  }
}

void NetworkThread::startThread() {
  thread_ = std::make_unique<QThread>();
  thread_->setObjectName(QStringLiteral("quorix network"));
  receiver_ = std::make_unique<QObject>();
  receiver_->moveToThread(thread_.get());
  thread_->start();
}

std::deque<NetworkThread::Job> NetworkThread::takeJobs() {
  const std::scoped_lock lock(mutex_);
  return std::exchange(jobs_, {});
}

void NetworkThread::performAll() {
  for (Job& job : takeJobs()) performOne(std::move(job));
}

void NetworkThread::performOne(Job job) {
  if (auto answer = foundation::URLSession::shared().answerInProcess(job.url)) {
    job.completion(*std::move(answer));
    return;
  }
  // Qt would read local files and its own resources as readily as pages.
  if (!isHttp(job.request.url())) {
    job.completion(failure(QNetworkReply::ProtocolUnknownError,
                           QStringLiteral("the address is neither http nor https")));
    return;
  }
  if (!network_) {
    network_ = std::make_unique<QNetworkAccessManager>();
    network_->setAutoDeleteReplies(true);
  }
  QNetworkReply* reply = network_->get(job.request);
  QObject::connect(
      reply, &QNetworkReply::finished, reply,
      [reply, completion = std::move(job.completion)] { completion(responseOf(*reply)); });
}

void NetworkThread::endAll() {
  if (network_) {
    for (QNetworkReply* reply : network_->findChildren<QNetworkReply*>()) reply->abort();
  }
  for (Job& job : takeJobs()) job.completion(cancelled());
  network_.reset();
  QThread::currentThread()->quit();
}

void NetworkThread::applicationBegins() {
  qAddPostRoutine(applicationEnds);  // Qt forgets its post routines with each application
  NetworkThread& self = instance();
  const std::scoped_lock lock(self.mutex_);
  self.applicationAlive_ = true;
}

void NetworkThread::applicationEnds() {
  NetworkThread& self = instance();
  {
    const std::scoped_lock lock(self.mutex_);
    self.applicationAlive_ = false;
    if (!self.thread_) return;
    QMetaObject::invokeMethod(
        self.receiver_.get(), [] { instance().endAll(); }, Qt::QueuedConnection);
  }
  // With no application alive, nobody else touches the thread from here on.
  if (QThread::currentThread() == self.thread_.get()) return;  // a completion ends the process
  self.thread_->wait();
  self.receiver_.reset();
  self.thread_.reset();
}

}  // namespace quorix::qt
