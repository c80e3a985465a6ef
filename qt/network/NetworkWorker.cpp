#include "qt/network/NetworkWorker.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QLoggingCategory>
#include <QMetaEnum>
#include <algorithm>
#include <future>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace quorix::qt {
namespace {

using foundation::URLResponse;

bool isHttp(const QUrl& url) {
  return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

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

namespace {

using Completions = std::map<NetworkWorker::Task, NetworkWorker::Completion>;

// Waits for the completions, but not longer than for the thread that should have run them.
void cancelElsewhere(Completions completions) {
  const auto rest = std::make_shared<Completions>(std::move(completions));
  const auto done = std::make_shared<std::promise<void>>();
  const auto cancelRest = [rest, done] {
    for (auto& [task, completion] : *rest) completion(cancelled());
    rest->clear();
    done->set_value();
  };
  try {
    std::thread(cancelRest).detach();
  } catch (const std::system_error&) {
    cancelRest();  // no thread is to be had
  }
  done->get_future().wait_for(NetworkWorker::kPatience);
}

}  // namespace

URLResponse cancelled() {
  return transportError(QNetworkReply::OperationCanceledError,
                        QStringLiteral("the application has ended"));
}

NetworkWorker::NetworkWorker() {
  thread_.setObjectName(QStringLiteral("quorix network"));
  moveToThread(&thread_);
  thread_.start();
}

void NetworkWorker::perform(Request request, Completion completion) {
  const std::scoped_lock lock(mutex_);
  const Task task = ++lastTask_;
  completions_.emplace(task, std::move(completion));
  QMetaObject::invokeMethod(
      this, [this, task, request = std::move(request)] { begin(task, request); },
      Qt::QueuedConnection);
}

void NetworkWorker::begin(Task task, const Request& request) {
  {
    const std::scoped_lock lock(mutex_);
    if (ending_) return;  // `cancelAll` comes next
  }
  auto answer = foundation::URLSession::shared().answerInProcess(request.url);
  stayIfLeftBehind();
  if (answer) {
    complete(task, *std::move(answer));
  } else if (!isHttp(request.address)) {
    complete(task, transportError(QNetworkReply::ProtocolUnknownError,
                                  QStringLiteral("the address is neither http nor https")));
  } else {
    share(task, request);
  }
}

void NetworkWorker::share(Task task, const Request& request) {
  const auto same = std::find_if(transfers_.begin(), transfers_.end(), [&](const auto& transfer) {
    return transfer->address() == request.address && transfer->timeLimit() == request.timeLimit;
  });
  if (same != transfers_.end()) return (*same)->join(task);
  transfers_.push_back(std::make_unique<Transfer>(
      request.address, request.timeLimit,
      [this](Transfer& ended, const URLResponse& response) { transferEnded(ended, response); }));
  transfers_.back()->join(task);
  beginTransfers();
}

void NetworkWorker::beginTransfers() {
  QHash<QString, int> running;
  for (const auto& transfer : transfers_) {
    if (transfer->hasBegun()) ++running[transfer->address().authority()];
  }
  for (const auto& transfer : transfers_) {
    if (transfer->hasBegun()) continue;
    int& count = running[transfer->address().authority()];
    if (count >= kTransfersPerHost) continue;
    ++count;
    transfer->begin();
  }
}

void NetworkWorker::transferEnded(Transfer& transfer, const URLResponse& response) {
  const auto tasks = transfer.tasks();
  const auto found = std::find_if(transfers_.begin(), transfers_.end(),
                                  [&](const auto& each) { return each.get() == &transfer; });
  found->release()->deleteLater();  // it is the caller
  transfers_.erase(found);
  beginTransfers();
  for (const Task task : tasks) complete(task, response);
}

void NetworkWorker::complete(Task task, URLResponse response) {
  Completion completion;
  {
    const std::scoped_lock lock(mutex_);
    const auto found = completions_.find(task);
    if (found == completions_.end()) return;
    completion = std::move(found->second);
    completions_.erase(found);
  }
  completion(std::move(response));
  stayIfLeftBehind();
}

void NetworkWorker::cancelAll() {
  transfers_.clear();
  for (;;) {
    Task task = 0;
    {
      const std::scoped_lock lock(mutex_);
      if (completions_.empty()) break;
      task = completions_.begin()->first;
    }
    complete(task, cancelled());
  }
  {
    const std::scoped_lock lock(mutex_);
    finishing_ = !leftBehind_;
  }
  stayIfLeftBehind();
  thread_.quit();
}

// The thread must not return into Qt, which the end of the process may have taken down by then.
void NetworkWorker::stayIfLeftBehind() {
  {
    const std::scoped_lock lock(mutex_);
    if (!leftBehind_) return;
  }
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

bool NetworkWorker::end() {
  {
    const std::scoped_lock lock(mutex_);
    ending_ = true;
  }
  QMetaObject::invokeMethod(
      this, [this] { cancelAll(); }, Qt::QueuedConnection);
  return thread_.wait(QDeadlineTimer(kPatience)) || !leaveBehind();
}

bool NetworkWorker::leaveBehind() {
  std::map<Task, Completion> rest;
  {
    const std::scoped_lock lock(mutex_);
    leftBehind_ = !finishing_;
    if (leftBehind_) rest = std::exchange(completions_, {});
  }
  if (leftBehind_) {
    cancelElsewhere(std::move(rest));
  } else {
    thread_.wait();  // only Qt's own end of it is left
  }
  return leftBehind_;
}

}  // namespace quorix::qt
