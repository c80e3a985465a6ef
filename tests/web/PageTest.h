#pragma once

#include <gmock/gmock.h>

#include <QFile>

#include "examples/common/StandInPages.h"
#include "platform/uikit/URLOpener.h"
#include "tests/qt/Screens.h"
#include "tests/qt/WaitUntil.h"
#include "tests/web/PageRow.h"

namespace quorix::testing {

constexpr const char* kModules = "https://modules.quorix.example";
constexpr const char* kWidget = "https://widget.quorix.example";

/// One server for the whole process, because the engine reads its address only once.
inline examples::StandInPages& pages() {
  static auto* server = new examples::StandInPages;  // kept until the engine has ended
  return *server;
}

/// A page of one color. It requests /here when it is painted, and runs `script` before. It contains
/// text, because the engine gives no input to an empty page.
inline examples::StandInPages::Answer page(const QByteArray& color, const QByteArray& content = {},
                                           const QByteArray& script = {}) {
  return {.body = "<!doctype html><html style='height:100%;background:" + color +
                  "'><link rel=icon href='data:,'><body style='margin:0'>" + content +
                  "<script>const tell = what => fetch('/report?' + encodeURIComponent(what));" +
                  script +
                  "</script><script>requestAnimationFrame(() => requestAnimationFrame("
                  "() => fetch('/here')))</script><br style='clear:both'><small style='color:" +
                  color + "'>text</small>"};
}

/// The reports of pages: the decoded query of each request for /report?WHAT.
inline QStringList reports() {
  QStringList all;
  for (const auto& request : pages().requests("/report")) {
    all.append(QString::fromUtf8(QByteArray::fromPercentEncoding(request.query)));
  }
  return all;
}

/// The lines of tests/data/web/<name>.txt, without comments, in fields between "|".
inline QList<QByteArrayList> tableOf(const QString& name) {
  QFile file(TEST_DATA "/web/" + name + ".txt");
  if (!file.open(QIODevice::ReadOnly)) qFatal("No table %s", qPrintable(name));
  QList<QByteArrayList> table;
  for (const QByteArray& line : file.readAll().trimmed().split('\n')) {
    if (line.startsWith('#')) continue;
    table.append(line.split('|'));
    for (QByteArray& field : table.back()) field = field.trimmed();
  }
  if (table.isEmpty()) qFatal("An empty table: %s", qPrintable(name));
  return table;
}

inline const QColor kGround(kPageGround.red, kPageGround.green, kPageGround.blue);

/// A window with a row that opens a sheet with a page, and the page's server.
template <class Screen>
class PageTest : public ::testing::Test {
 protected:
  static constexpr QPoint kInPage{100, 400};
  static constexpr QPoint kAtControl{360 - 24, 10 + 64};

  PageTest() {
    pages().forgetRequests();
    opener = screen.add(PageRow{[this] { return make(); }}, {20, 40, 300, 0});
  }

  /// Opens the sheet with the page at `address`.
  void open(const std::string& address) {
    address_ = address;
    screen.click("Open page");
  }
  /// Opens `answer` as a page of the modules service. Waits until it is painted in `color`.
  void openPainted(examples::StandInPages::Answer answer, QColor color) {
    pages().serve("/page", std::move(answer));
    pages().forgetRequests("/here");
    open(std::string(kModules) + "/page");
    ASSERT_TRUE(settings.allowsContentJavaScript ? isPainted(color) : shows(color));
  }
  void openBlue(const QByteArray& content = {}, const QByteArray& script = {}) {
    openPainted(page("#0000ff", content, script), Qt::blue);
  }

  QColor at(QPoint point) { return screen.grab().pixelColor(point); }
  /// Waits until the page has this color. False if it never has.
  bool shows(QColor color, QPoint where = kInPage) {
    return waitUntil([&] { return at(where) == color; });
  }
  /// Waits until a page of this color is shown and takes input. The next call waits for the next
  /// page.
  bool isPainted(QColor color) {
    const bool here = waitUntil([] { return !pages().requests("/here").empty(); });
    pages().forgetRequests("/here");
    return here && shows(color);
  }
  static bool reported(const QString& what) {
    return waitUntil([&] { return reports().contains(what); });
  }
  bool isOpen() { return screen.shows("Close page"); }

  std::shared_ptr<webkit::WebContent> make() {
    auto content = std::make_shared<webkit::WebContent>();
    content->settings = settings;
    content->onNewWindow = [this](const std::optional<foundation::URL>& url) {
      windows.push_back(url ? url->absoluteString() : "none");
    };
    content->onProcessEnded = [this] { ++ends; };
    content->onLoadFailed = [this] { ++failures; };
    content->load({foundation::URL::parse(address_).value(), {}, timeout});
    latest = content;
    return content;
  }

  Screen screen;
  decltype(screen.add(std::declval<swiftui::View>(), QRectF())) opener;
  webkit::WebContent::Settings settings{true, true, true};
  foundation::URLRequest::Seconds timeout = foundation::URLRequest::defaultTimeout;
  std::vector<std::string> windows;  ///< addresses to open outside the app
  int ends = 0;                      ///< pages whose process ended
  int failures = 0;                  ///< loads without any data
  std::weak_ptr<webkit::WebContent> latest;

 private:
  std::string address_;
};

}  // namespace quorix::testing
