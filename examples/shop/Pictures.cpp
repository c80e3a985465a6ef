#include "examples/shop/Pictures.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QMouseEvent>
#include <algorithm>
#include <cstdio>

#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "examples/shop/ScoreRow.h"
#include "examples/shop/Shop.h"
#include "examples/shop/ShopWindow.h"
#include "examples/shop/Shopper.h"
#include "examples/shop/StandInServices.h"
#include "qt/Picture.h"

namespace quorix::examples {
namespace {

enum Who { ana, ben, chie, dana, eli };
enum Language { english, spanish, german, arabic, french };

struct WidgetScene {
  const char* name;
  Who who;
  const char* language;
  bool dark = false;
  bool sheet = false;
  bool rightToLeft = false;
};

constexpr WidgetScene widgetScenes[] = {
    {"row-discount-en-light", ana, "en"},
    {"row-discount-en-dark", ana, "en", true},
    {"row-no-discount-en-light", ben, "en"},
    {"row-yen-en-light", chie, "en"},
    {"row-kronor-en-light", dana, "en"},
    {"row-discount-es-light", ana, "es"},
    {"row-discount-de-light", ana, "de"},
    {"row-fr-falls-back-to-english", ana, "fr"},
    {"row-ar-rtl", ana, "ar", false, false, true},
    {"sheet-discount-en-light", ana, "en", false, true},
    {"sheet-discount-en-dark", ana, "en", true, true},
    {"sheet-no-discount-es-light", ben, "es", false, true},
    {"sheet-no-discount-es-dark", ben, "es", true, true},
    {"sheet-discount-de-light", dana, "de", false, true},
    {"sheet-ar-rtl", ana, "ar", false, true, true},
};

struct ShopScene {
  const char* name;
  ShopWindow::Choices choices;
  bool sheet = false;
};

constexpr int light = 1;
constexpr int dark = 2;

constexpr ShopScene shopScenes[] = {
    {"shop-light", {ana, english, light, 0}},
    {"shop-dark", {ana, english, dark, 0}},
    {"shop-no-discount-es-light", {ben, spanish, light, 0}},
    {"shop-ar-rtl", {ana, arabic, light, 0}},
    {"shop-broken-token", {eli, english, light, 0}},
    {"shop-larger-text", {ana, english, light, 2}},
    {"shop-sheet-light", {ana, english, light, 0}, true},
    {"shop-sheet-dark", {ana, english, dark, 0}, true},
    {"shop-sheet-es-light", {ben, spanish, light, 0}, true},
    {"shop-sheet-ar-rtl", {ana, arabic, dark, 0}, true},
};

void show(QQuickWindow& window) {
  window.show();
  while (!window.isExposed()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Lets everything that is under way come to rest.
void settle() {
  QEventLoop turns;
  StandInServices::whenAnswered([&turns] { turns.quit(); });
  turns.exec();
  QCoreApplication::processEvents();
}

/// A widget fetches its language's words while it is on screen. Afterwards it has them.
void letSpeak(const swiftui::View& widget) {
  QQuickWindow screen;
  new qt::ViewItem(widget, screen.contentItem());
  show(screen);
  settle();
}

QImage pictureOf(const WidgetScene& scene) {
  constexpr double margin = 16;
  const swiftui::View widget = ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(
                                   Shop::clientId().toStdString(), scene.language,
                                   Shopper::all().at(scene.who).token, {std::nullopt, std::nullopt})
                                   .padding(margin);
  qt::PictureOptions options;
  options.environment.appearance =
      scene.dark ? graphics::Appearance::dark : graphics::Appearance::light;
  options.environment.direction = scene.rightToLeft ? layout::LayoutDirection::rightToLeft
                                                    : layout::LayoutDirection::leftToRight;
  options.environment.scale = 2;
  options.sheet = scene.sheet;
  letSpeak(widget);
  return qt::picture(widget, options);
}

void tap(QQuickWindow& window, const QQuickItem& item) {
  const QPointF point = item.mapToScene(QPointF(item.width() / 2, item.height() / 2));
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const bool down = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, point, window.mapToGlobal(point), Qt::LeftButton,
                      down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

void press(QQuickWindow& window, Qt::Key key) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
  }
}

/// A first frame finds out what is to be seen and how large it is; what follows from that is in
/// the next one.
QImage frameOf(QQuickWindow& window) {
  settle();
  window.grabWindow();
  settle();
  return window.grabWindow();
}

QImage pictureOf(ShopWindow& shop, const ShopScene& scene) {
  shop.choose(scene.choices);
  const QImage page = frameOf(shop.window());
  if (!scene.sheet) return page;
  tap(shop.window(), shop.row());
  const QImage sheet = frameOf(shop.window());
  press(shop.window(), Qt::Key_Escape);
  settle();
  return sheet;
}

}  // namespace

bool Pictures::write() {
  if (!QDir().mkpath(folder_)) {
    std::fprintf(stderr, "quorix-shop: can't make the folder %s\n", qPrintable(folder_));
    return false;
  }
  return writeWidgets() && writeShop();
}

bool Pictures::writeWidgets() {
  return std::ranges::all_of(widgetScenes, [this](const WidgetScene& scene) {
    return save(pictureOf(scene), scene.name);
  });
}

bool Pictures::writeShop() {
  ShopWindow shop;
  shop.row().setMoving(false);
  show(shop.window());
  return std::ranges::all_of(
      shopScenes, [&](const ShopScene& scene) { return save(pictureOf(shop, scene), scene.name); });
}

bool Pictures::save(const QImage& image, const char* name) const {
  const QString path = QStringLiteral("%1/%2.png").arg(folder_, QLatin1String(name));
  if (!image.save(path)) {
    std::fprintf(stderr, "quorix-shop: can't write %s\n", qPrintable(path));
    return false;
  }
  std::puts(qPrintable(path));
  return true;
}

}  // namespace quorix::examples
