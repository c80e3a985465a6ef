// Opens the overlay of the declarative info widget twice by a tap. The first time includes the
// loading of the web engine. Prints the milliseconds until the sheet and the page were visible.

#include "bench/BenchApplication.h"
#include "bench/QuickStage.h"
#include "bench/Subjects.h"
#include "bench/overlay/OverlayClock.h"
#include "platform/uikit/URLOpener.h"
#include "qt/quick/ViewItem.h"

int main(int argc, char** argv) {
  using namespace quorix::bench;
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  const BenchApplication application(argc, argv);
  quorix::uikit::URLOpener::install(nullptr);  // without an engine, do not open the page outside
  QQuickWindow window;
  window.resize(375, 700);
  const InfoSubject info(InfoSubject::Form::declarative);
  quorix::qt::ViewItem widget(info.ours(), window.contentItem());
  widget.setPosition({16, 16});
  widget.setWidth(343);
  window.show();
  window.requestActivate();
  BenchApplication::settle();

  OverlayClock clock(window,
                     [](const QQuickItem& item) { return item.inherits("quorix::qt::SheetItem"); });
  const auto tap = [&] { sendTap(window, {100, 60}); };
  const auto cold = clock.open(tap);
  clock.close([&] { sendEscape(window); });
  const auto warm = clock.open(tap);
  OverlayClock::print(cold, warm);
  std::fflush(stdout);
  std::_Exit(0);  // skips the engine's shutdown, which is not measured
}
