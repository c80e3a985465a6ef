#include "tools/quorix/Translations.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <algorithm>
#include <atomic>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "QuorixWidgets/localization/Translations.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/URLSession.h"
#include "platform/hosting/ViewHost.h"
#include "qt/text/QtTextEngine.h"
#include "tools/quorix/Files.h"

namespace quorix::tool {
namespace {

using foundation::MainQueue;
using foundation::URL;
using foundation::URLResponse;
using foundation::URLSession;

/// The line of the error. The library's reader does not count lines, so Qt's reader parses the
/// document again.
std::string lineOfError(const std::string& document) {
  QJsonParseError error;
  QJsonDocument::fromJson(QByteArray::fromStdString(document), &error);
  if (error.error == QJsonParseError::NoError) return {};
  const auto end = document.begin() + std::min<std::ptrdiff_t>(error.offset, std::ssize(document));
  return "line " + std::to_string(1 + std::count(document.begin(), end, '\n')) + ": ";
}

bool has(const TranslationTable& table, const TranslationTable::Entry& wanted) {
  return std::ranges::any_of(table.entries(), [&](const auto& entry) {
    return entry.section == wanted.section && entry.key == wanted.key;
  });
}

/// The keys in `all` that are missing in `some`.
std::vector<std::string> difference(const TranslationTable& all, const TranslationTable& some) {
  std::vector<std::string> keys;
  for (const auto& entry : all.entries()) {
    if (has(some, entry)) continue;
    keys.push_back(std::string(entry.section) + '.' + std::string(entry.key));
  }
  return keys;
}

/// "title: a, b"; empty without keys.
std::string listed(const std::string& title, const std::vector<std::string>& keys) {
  std::string list;
  for (const std::string& key : keys) list += (list.empty() ? title + ": " : ", ") + key;
  return list;
}

struct BlindSurface final : hosting::ViewHost::Client {
  void viewNeedsDisplay() override {}
  void presentationChanged() override {}
};

}  // namespace

std::variant<std::string, Failure> readTranslations(const std::string& path) {
  auto bytes = readInputFile(path);
  if (std::holds_alternative<Failure>(bytes)) return bytes;
  const std::string& document = std::get<std::string>(bytes);
  const auto table = readTranslationTable(document);
  const auto* error = std::get_if<foundation::Error>(&table);
  if (error == nullptr) return bytes;
  const std::string line = error->domain == "JSON" ? lineOfError(document) : "";
  return Failure::refused(path + ": " + line + error->description);
}

Oversights Oversights::in(const std::string& document) {
  const auto result = readTranslationTable(document);
  const auto* table = std::get_if<std::shared_ptr<const TranslationTable>>(&result);
  if (table == nullptr) return {};
  const auto complete = builtInTranslations("en");
  return {difference(*complete, **table), difference(**table, *complete)};
}

std::optional<std::string> Oversights::line() const {
  std::string text = listed("missing, shown empty", missing);
  if (!text.empty() && !unused.empty()) text += "; ";
  text += listed("never used", unused);
  return text.empty() ? std::nullopt : std::optional(text);
}

URLResponse serviceAnswer(const std::optional<std::string>& document) {
  if (document) return {{}, *document, 200};
  return {foundation::Error{"quorix", 1, "the tool has no network"}, {}, 0};
}

bool fetchTranslations(const swiftui::View& view, const std::optional<std::string>& document) {
  std::atomic<bool> asked = false;
  const auto fence = URL::parse(std::string(modulesServiceBaseURL()) + "/fence");
  const auto protocol =
      URLSession::shared().registerProtocol([&](const URL& url) -> std::optional<URLResponse> {
        if (url != *fence) asked = true;
        return serviceAnswer(document);
      });
  BlindSurface surface;
  hosting::ViewHost host(qt::QtTextEngine::shared(), surface);
  host.setRoot(view);
  host.setOnScreen(true);
  host.sizeThatFits({});  // evaluates the view, which queues its task

  // The session and the main queue answer in order: when a second request completes, the view's own
  // has completed too.
  QEventLoop loop;
  MainQueue::async([&] {
    URLSession::shared().get(*fence,
                             [&](const URLResponse&) { MainQueue::async([&] { loop.quit(); }); });
  });
  loop.exec();
  host.setOnScreen(false);
  return asked;
}

}  // namespace quorix::tool
