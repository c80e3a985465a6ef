#include "tools/quorix/PictureApplication.h"

#include <QEventLoop>

#include "platform/foundation/MainQueue.h"
#include "qt/Engine.h"
#include "tools/quorix/QuietQt.h"

namespace quorix::tool {
namespace {

/// Before the application object is made, which reads it.
int& prepared(int& argc) {
  keepQtQuiet();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  return argc;
}

}  // namespace

PictureApplication::PictureApplication() : application_(prepared(argc_), argv_) {
  qt::installEngine();
}

void PictureApplication::takeTurn() const {
  QEventLoop loop;
  foundation::MainQueue::async([&] { loop.quit(); });
  loop.exec();
}

}  // namespace quorix::tool
