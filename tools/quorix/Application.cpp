#include <QString>
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

/// Sets options that Qt reads when the application object is made.
int& prepared(int& argc) {
  keepQtQuiet();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  return argc;
}

}  // namespace

void keepQtQuiet() { qInstallMessageHandler(keepQuiet); }

PictureApplication::PictureApplication() : application_(prepared(argc_), argv_) {
  qt::installEngine();
  foundation::URLSession::shared().setNetworkEnabled(false);
}

}  // namespace quorix::tool
