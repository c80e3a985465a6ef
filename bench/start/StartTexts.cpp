// The smallest app that paints the row's three texts with Qt alone, in the same faces. Prints the
// time of its first frame.

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QQuickWindow>

#include "bench/start/FirstFrame.h"

namespace {

QFont face(const char* name) {
  const int id = QFontDatabase::addApplicationFont(
      QStringLiteral(":/faces/%1.dataset/%1.otf").arg(QLatin1String(name)));
  QFont font(QFontDatabase::applicationFontFamilies(id).value(0));
  font.setPixelSize(14);
  return font;
}

class Texts final : public QQuickPaintedItem {
 public:
  using QQuickPaintedItem::QQuickPaintedItem;
  void paint(QPainter* painter) override {
    painter->setFont(face("Saans-Regular"));
    painter->drawText(QPointF(0, 14), QStringLiteral("Your return fee "));
    QFont struck = painter->font();
    struck.setStrikeOut(true);
    painter->setFont(struck);
    painter->drawText(QPointF(160, 14), QStringLiteral("€4.00"));
    painter->setFont(face("Saans-Medium"));
    painter->drawText(QPointF(115, 14), QStringLiteral("€2.00"));
  }
};

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  QQuickWindow window;
  window.resize(375, 100);
  quorix::bench::quitAtFirstFrame(window);
  Texts texts(window.contentItem());
  texts.setPosition({16, 16});
  texts.setSize({343, 20});
  window.show();
  return QGuiApplication::exec();
}
