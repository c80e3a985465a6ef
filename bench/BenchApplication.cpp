#include "bench/BenchApplication.h"

#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>
#include <cstdlib>
#include <ctime>

#include "bench/Subjects.h"
#include "platform/foundation/URLSession.h"
#include "qt/Engine.h"
#include "qt/Picture.h"

namespace quorix::bench {
namespace {

/// Selects the renderer; must be called before the application object is made.
int& prepared(int& argc) {
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  return argc;
}

}  // namespace

BenchApplication::BenchApplication(int& argc, char** argv) : application_(prepared(argc), argv) {
  qt::installEngine();
  noNews_ = foundation::URLSession::shared().registerProtocol([](const foundation::URL&) {
    return foundation::URLResponse{{}, {}, 404};
  });
  // Registers the faces with Qt, as our first row would.
  if (qt::picture(Shopper(0).ours()).isNull()) std::abort();
}

void BenchApplication::settle() {
  QEventLoop loop;
  QTimer::singleShot(300, &loop, &QEventLoop::quit);
  loop.exec();
}

double BenchApplication::threadSeconds() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

}  // namespace quorix::bench
