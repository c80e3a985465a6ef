#include "tools/quorix/QuietQt.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

#include "tools/quorix/Failure.h"

namespace quorix::tool {
namespace {

void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type != QtFatalMsg) return;
  const QByteArray line = message.section(QLatin1Char('\n'), 0, 0).toLocal8Bit();
  std::fprintf(stderr, "quorix: %s\n", line.constData());
  std::_Exit(Failure::refusedStatus);
}

}  // namespace

void keepQtQuiet() { qInstallMessageHandler(keepQuiet); }

}  // namespace quorix::tool
