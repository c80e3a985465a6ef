// A web-engine view in a window, as an app would show one itself.

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>
#include <QtWebEngineQuick>
#include <memory>

#include "bench/page/Painted.h"

int main(int argc, char** argv) {
  using namespace quorix;
  QtWebEngineQuick::initialize();
  QGuiApplication app(argc, argv);
  bench::blueServer();
  QQuickWindow window;
  window.resize(360, 600);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) return 1;
  QTest::qWait(100);
  QQmlEngine engine;
  for (const char* name : {"bare cold", "bare warm", "bare warm"}) {
    std::unique_ptr<QObject> view;
    bench::timePage(name, window, [&] {
      QQmlComponent component(&engine);
      component.setData("import QtWebEngine\nWebEngineView {}", {});
      view.reset(component.create());
      auto* item = qobject_cast<QQuickItem*>(view.get());
      if (!item) qFatal("%s", qPrintable(component.errorString()));
      item->setParentItem(window.contentItem());
      item->setSize(window.size());
      item->setProperty("url", QUrl(QString::fromLatin1(bench::pageAddress)));
    });
    view.reset();
    QTest::qWait(300);
  }
  return 0;
}
