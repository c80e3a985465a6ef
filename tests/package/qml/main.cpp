// A QML app without an import path or registered types. Both widgets must have a size.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <cstdio>
#include <memory>

#include "../Token.h"

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  QQmlEngine engine;
  QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Main.qml")));
  const std::unique_ptr<QObject> page(
      component.createWithInitialProperties({{"token", QString::fromLatin1(shopperToken)}}));
  if (!page) {
    std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
    return 1;
  }
  int tall = 0;
  for (const QQuickItem* widget : dynamic_cast<QQuickItem&>(*page).childItems()) {
    std::printf("%s: %g points high\n", widget->metaObject()->className(), widget->height());
    if (widget->height() > 10) ++tall;
  }
  return tall == 2 ? 0 : 1;
}
