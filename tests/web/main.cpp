#include <unistd.h>

#include <QApplication>
#include <cstdio>

#include "tests/core/OpenedAddresses.h"
#include "tests/web/PageTest.h"

namespace quorix::testing {
namespace {

/// Opens the page of the stand-in service.
PageRow pageRow() {
  return {[] {
    auto content = std::make_shared<webkit::WebContent>();
    content->settings.allowsContentJavaScript = true;
    content->load({foundation::URL::parse(std::string(kModules) + "/page").value()});
    return content;
  }};
}

bool maps(const char* library) {
  QFile file(QStringLiteral("/proc/self/maps"));
  return file.open(QIODevice::ReadOnly) && file.readAll().contains(library);
}

void say(const char* when) {
  std::printf("%s: engine %d quick %d widgets %d\n", when, maps("libQt6WebEngine"),
              maps("libQuorixWebQuick"), maps("libQuorixWebWidgets"));
}

/// Opens a sheet without a page, then a sheet with a page, with motion.
template <class Screen>
int tellMaps() {
  pages().serve("/page", page("#0000ff"));
  Screen screen;
  screen.add(FeeRow("4 €"), {20, 40, 300, 0});
  auto* row = screen.add(pageRow(), {20, 100, 300, 0});
  row->setMotion(true);
  screen.click("Row 4 €");
  screen.key(Qt::Key_Escape);
  say("before");
  const OpenedAddresses outside;
  screen.click("Open page");
  const bool came =
      waitUntil([&] { return !pages().requests("/here").empty() || !outside.list().empty(); });
  screen.settle();
  say(came ? "after" : "never");
  for (const std::string& address : outside.list()) std::printf("outside: %s\n", address.c_str());
  std::printf("sheet: %d\n", screen.shows("Close page"));
  return 0;
}

/// Opens a page that uses every kind of storage and reports what it found there.
int tellKept() {
  pages().serve("/page", page("#0000ff", {}, R"(
    tell('kept ' + document.cookie + (localStorage.kept || ''));
    document.cookie = 'kept=1; max-age=100000'; localStorage.kept = 'too'; )"));
  QuickScreen screen;
  screen.add(pageRow(), {20, 100, 300, 0});
  screen.click("Open page");
  const bool told = waitUntil([] { return !pages().requests("/here").empty(); });
  std::printf("%s\n", qPrintable(told ? reports().join(' ') : QStringLiteral("never")));
  return 0;
}

/// Runs a task of EngineLoadingTest, by name. Returns the exit status.
int runAsChild(const QString& task) {
  if (task == QLatin1String("maps-quick")) return tellMaps<QuickScreen>();
  if (task == QLatin1String("maps-widgets")) return tellMaps<WidgetScreen>();
  if (task == QLatin1String("kept")) return tellKept();
  return 2;
}

}  // namespace
}  // namespace quorix::testing

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Colors are compared, so they must not depend on a graphics driver.
  if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) qputenv("QT_QUICK_BACKEND", "software");
  // The engine has no sandbox for root, the usual user of tests in a container.
  const bool keepsSandbox = qEnvironmentVariableIsSet("WEB_TESTS_KEEP_SANDBOX");
  if (geteuid() == 0 && !keepsSandbox) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
  if (!qEnvironmentVariableIsSet("WEB_TESTS_LATE")) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  }
  QApplication app(argc, argv);
  if (argc > 1) return quorix::testing::runAsChild(QString::fromLocal8Bit(argv[1]));
  return RUN_ALL_TESTS();
}
