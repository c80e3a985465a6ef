// The engine's own cost: makes a web view in a window twice. The first time includes the loading of
// the engine. Prints the milliseconds until each was visible.

#include <QQmlComponent>
#include <QQmlEngine>

#include "QuorixWidgets/localization/ServiceAddresses.h"
#include "bench/BenchApplication.h"
#include "bench/overlay/OverlayClock.h"

int main(int argc, char** argv) {
  using namespace quorix::bench;
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  const BenchApplication application(argc, argv);
  QQuickWindow window;
  window.resize(375, 700);
  window.show();
  BenchApplication::settle();

  const auto address = quorix::OverlayAddress{.locale = "en"}.url();
  const QUrl url(QString::fromStdString(address ? address->absoluteString() : ""));
  QQmlEngine engine;
  std::unique_ptr<QQmlComponent> component;
  std::unique_ptr<QObject> view;
  const auto open = [&] {
    if (!component) {
      component = std::make_unique<QQmlComponent>(&engine);
      component->setData("import QtWebEngine\nWebEngineView {}", {});
    }
    view.reset(component->createWithInitialProperties(
        {{"parent", QVariant::fromValue(window.contentItem())},
         {"width", 375},
         {"height", 690},
         {"url", url}}));
    if (!view) qFatal("%s", qPrintable(component->errorString()));
  };
  OverlayClock clock(window,
                     [](const QQuickItem& item) { return item.inherits("QQuickWebEngineView"); });
  const auto cold = clock.open(open);
  clock.close([&] { view.reset(); });
  const auto warm = clock.open(open);
  OverlayClock::print(cold, warm);
  std::fflush(stdout);
  std::_Exit(0);  // skips the engine's shutdown, which is not measured
}
