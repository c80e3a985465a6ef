// The declarative info widget in a window: a tap opens its overlay, the first time with the web
// engine still to be loaded, the second time with all of it there. Prints after how many
// milliseconds the sheet and the page were to be seen.

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
  quorix::uikit::URLOpener::install(nullptr);  // without the engine the page would open elsewhere
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
  std::_Exit(0);  // how long the engine takes to leave is not asked
}
