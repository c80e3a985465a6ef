// The smallest app that shows the row in QML, compiled ahead of time. Prints the time of its first
// frame.

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include "bench/start/FirstFrame.h"

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  for (const char* face : {"Saans-Regular", "Saans-Medium"}) {
    QFontDatabase::addApplicationFont(
        QStringLiteral(":/faces/%1.dataset/%1.otf").arg(QLatin1String(face)));
  }
  QQmlApplicationEngine engine;
  engine.load(QUrl(QStringLiteral("qrc:/QuorixStart/Main.qml")));
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
  if (!window) return 1;
  quorix::bench::quitAtFirstFrame(*window);
  window->show();
  return QGuiApplication::exec();
}
