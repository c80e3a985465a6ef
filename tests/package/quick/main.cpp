// A Qt Quick app. Its own texts find the library's face, the score row is painted, and a tap on the
// info widget opens its page. With "--web", the installed web engine must show the page.
#include <QuorixWidgets/info/InfoWidgetBuilder.h>
#include <QuorixWidgets/localization/QuorixFont.h>
#include <QuorixWidgets/score/ScoreWidgetBuilder.h>
#include <qt/quick/ViewItem.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFontInfo>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <cstdio>
#include <cstdlib>

#include "../Token.h"

namespace {

void tap(QQuickWindow& window, QPointF point) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, point, window.mapToGlobal(point), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

bool webEngineIsLoaded() {
  QFile maps("/proc/self/maps");
  return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQuorixWebQuick.so");
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
  QGuiApplication app(argc, argv);
  quorix::QuorixFont::medium();
  if (QFontInfo(QFont(QStringLiteral("Saans"))).family() != QLatin1String("Saans")) return 1;
  QQuickWindow window;
  window.resize(390, 600);
  const auto place = [&](quorix::swiftui::View view, double y) {
    auto* item = new quorix::qt::ViewItem(std::move(view), window.contentItem());
    item->setWidth(390);
    item->setY(y);
    return item;
  };
  window.show();
  QCoreApplication::processEvents();
  const QImage blank = window.grabWindow();
  auto* row = place(quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
                        "my-shop", "en", shopperToken, {std::nullopt, std::nullopt}),
                    0);
  QCoreApplication::processEvents();  // puts the row on screen
  const bool painted = row->implicitHeight() > 10 && window.grabWindow() != blank;
  std::printf("row: %g points high, %s\n", row->implicitHeight(), painted ? "painted" : "blank");
  if (!painted || argc < 2) return painted ? 0 : 1;

  auto* info = place(quorix::InfoWidgetBuilder::buildSwiftUIInfoWidgetView(
                         "en", {std::nullopt, std::nullopt, std::nullopt, true}),
                     100);
  QCoreApplication::processEvents();
  window.grabWindow();
  tap(window, {195, 100 + info->implicitHeight() / 2});
  QElapsedTimer waited;
  waited.start();
  while (!webEngineIsLoaded() && waited.elapsed() < 30'000) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
  }
  std::printf("web engine: %s\n", webEngineIsLoaded() ? "loaded" : "missing");
  std::fflush(stdout);
  std::_Exit(webEngineIsLoaded() ? 0 : 1);  // exits during the load of a page
}
