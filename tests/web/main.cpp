#include <gtest/gtest.h>
#include <unistd.h>

#include <QApplication>

#include "tests/web/ChildProcess.h"

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
