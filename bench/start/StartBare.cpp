// The part that both minimal apps need before they show anything: a window, and Qt's list of
// installed fonts. Prints the time of the window's first, empty frame.

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickWindow>

#include "bench/start/FirstFrame.h"

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  QQuickWindow window;
  window.resize(375, 100);
  quorix::bench::quitAtFirstFrame(window);
  if (QFontDatabase::families().isEmpty()) return 1;
  window.show();
  return QGuiApplication::exec();
}
