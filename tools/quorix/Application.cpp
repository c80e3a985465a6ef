#include <QApplication>
#include <cstdio>
#include <cstdlib>

#include "platform/foundation/URLSession.h"
#include "qt/Engine.h"
#include "tools/quorix/Application.h"
#include "tools/quorix/CommandLine.h"

namespace quorix::tool {
namespace {

void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return;
  const QByteArray line = message.section(QLatin1Char('\n'), 0, 0).toLocal8Bit();
  std::fprintf(stderr, "quorix: %s\n", line.constData());
  std::_Exit(Failure::refusedStatus);
}

}  // namespace

std::unique_ptr<QGuiApplication> startApplication(bool withWindows) {
  static int argc = 1;
  static char name[] = "quorix";
  static char* argv[] = {name, nullptr};
  qInstallMessageHandler(keepQuiet);
  std::unique_ptr<QGuiApplication> application;
  if (withWindows) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);  // for web pages
    application = std::make_unique<QApplication>(argc, argv);
  } else {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application = std::make_unique<QGuiApplication>(argc, argv);
  }
  qt::installEngine();
  foundation::URLSession::shared().setNetworkEnabled(false);
  return application;
}

}  // namespace quorix::tool
