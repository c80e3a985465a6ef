#include "tools/quorix/Texts.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <algorithm>
#include <atomic>

#include "QuorixWidgets/localization/Strings.h"
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

/// The keys in `all` that are missing in `some`.
std::vector<std::string> difference(const TranslationTable& all, const TranslationTable& some) {
  std::vector<std::string> keys;
  for (const auto& wanted : all.entries()) {
    const bool found = std::ranges::any_of(some.entries(), [&](const auto& entry) {
      return entry.section == wanted.section && entry.key == wanted.key;
    });
    if (!found) keys.push_back(std::string(wanted.section) + '.' + std::string(wanted.key));
  }
  return keys;
}

/// "title: a, b"; empty without keys.
std::string listed(const std::string& title, const std::vector<std::string>& keys) {
  std::string list;
  for (const std::string& key : keys) list += (list.empty() ? title + ": " : ", ") + key;
  return list;
}

}  // namespace

std::variant<Translations, Failure> Translations::read(const std::string& path) {
  auto bytes = readInputFile(path);
  if (const auto* failure = std::get_if<Failure>(&bytes)) return *failure;
  auto& document = std::get<std::string>(bytes);
  const auto result = readTranslationTable(document);
  if (const auto* error = std::get_if<foundation::Error>(&result)) {
    const std::string line = error->domain == "JSON" ? lineOfError(document) : "";
    return Failure::refused(path + ": " + line + error->description);
  }
  const auto& table = *std::get<std::shared_ptr<const TranslationTable>>(result);
  const auto complete = builtInTranslations("en");
  return Translations{std::move(document), difference(*complete, table),
                      difference(table, *complete)};
}

std::string Translations::mistakes() const {
  const std::string text = listed("missing, shown empty", missing);
  const std::string_view separator = text.empty() || unused.empty() ? "" : "; ";
  return text + std::string(separator) + listed("never used", unused);
}

std::vector<std::string> mistakesInTable(std::string_view bytes) {
  const auto reading = foundation::readStringsFile(bytes);
  if (const auto* error = std::get_if<foundation::Error>(&reading)) return {error->description};
  std::vector<std::string> lines;
  for (const auto& problem : problems(std::get<foundation::StringTable>(reading))) {
    lines.push_back('"' + problem.key + "\" " + problem.what);
  }
  return lines;
}

bool fetchTranslations(const swiftui::View& view, const std::string& document) {
  const auto fence = URL::parse("https://fence.invalid");
  std::atomic<bool> asked = false;
  const auto service = URLSession::shared().registerProtocol([&](const URL& url) {
    if (url != *fence) asked = true;
    return URLResponse{{}, document, 200};
  });
  hosting::ViewHost::Client surface;
  hosting::ViewHost host(qt::QtTextEngine::shared(), surface);
  host.setRoot(view);
  host.setOnScreen(true);
  host.sizeThatFits({});  // evaluates the view, which queues its task

  // The session and the main queue answer in order: when a second request completes, the view's own
  // has completed too.
  QEventLoop loop;
  const auto end = [&] { loop.quit(); };
  MainQueue::async([&] {
    URLSession::shared().get(*fence, [&](const URLResponse&) { MainQueue::async(end); });
  });
  loop.exec();
  host.setOnScreen(false);
  return asked;
}

}  // namespace quorix::tool
