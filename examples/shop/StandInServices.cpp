#include "examples/shop/StandInServices.h"

#include <QFile>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"

namespace quorix::examples {
namespace {

using foundation::MainQueue;
using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

constexpr std::string_view notFoundPage =
    "<!doctype html>\n<html><head><title>404 Not Found</title></head>"
    "<body><h1>Not Found</h1></body></html>\n";

URL serviceAddress() { return URL::parse(modulesServiceBaseURL()).value(); }

/// The language of the table that `path` requests; absent for any other path.
std::optional<std::string_view> languageIn(std::string_view path) {
  constexpr std::string_view before = "/translations/score/overlay/";
  constexpr std::string_view after = ".json";
  if (!path.starts_with(before) || !path.ends_with(after)) return std::nullopt;
  path.remove_prefix(before.size());
  if (path.size() <= after.size()) return std::nullopt;
  path.remove_suffix(after.size());
  if (path.find_first_of("/.") != path.npos) return std::nullopt;
  return path;
}

URLResponse answer(std::string_view path) {
  if (const auto language = languageIn(path)) {
    QFile table(QStringLiteral(":/shop/translations/%1.json").arg(QString::fromUtf8(*language)));
    if (table.open(QIODevice::ReadOnly)) return {{}, table.readAll().toStdString(), 200};
  }
  return {{}, std::string(notFoundPage), 404};
}

}  // namespace

StandInServices::StandInServices(std::chrono::milliseconds delay)
    : registration_(URLSession::shared().registerProtocol(
          [delay, service = serviceAddress()](const URL& url) -> std::optional<URLResponse> {
            if (url.origin() != service.origin()) return std::nullopt;
            std::this_thread::sleep_for(delay);
            return answer(url.path());
          })) {}

void StandInServices::whenAnswered(std::function<void()> then) {
  // The session and the main queue answer in order: when this request completes, all earlier ones
  // have completed too. In the last turn, views read the answers.
  MainQueue::async([then = std::move(then)] {
    URLSession::shared().get(serviceAddress(), [then](const URLResponse&) {
      MainQueue::async([then] { MainQueue::async(then); });
    });
  });
}

}  // namespace quorix::examples
