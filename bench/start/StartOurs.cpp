// The smallest app that shows our row: a window and a view item. Prints the time of its first
// frame.

#include <QGuiApplication>
#include <QQuickWindow>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "bench/start/FirstFrame.h"
#include "qt/Engine.h"
#include "qt/quick/ViewItem.h"

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  quorix::qt::installEngine();
  QQuickWindow window;
  window.resize(375, 100);
  quorix::bench::quitAtFirstFrame(window);
  quorix::qt::ViewItem row(
      quorix::ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
          "my-shop", "en", quorix::bench::kToken, {std::nullopt, std::nullopt}),
      window.contentItem());
  row.setPosition({16, 16});
  row.setWidth(343);
  window.show();
  return QGuiApplication::exec();
}
