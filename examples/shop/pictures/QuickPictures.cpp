#include "examples/shop/pictures/Pictures.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <algorithm>

#include "examples/shop/pictures/ShopScene.h"
#include "platform/foundation/Error.h"
#include "qml/Types.h"
#include "qt/WebComponent.h"

namespace quorix::examples {
namespace {

using Open = ShopScene::Open;
using Page = ShopScene::Page;

constexpr ShopScene scenes[] = {
    {"shop-light", {ana, english, light}},
    {"shop-dark", {ana, english, dark}},
    {"shop-no-discount-es-light", {ben, spanish, light}},
    {"shop-ar-rtl", {ana, arabic, light}},
    {"shop-ja-light", {chie, japanese, light}},
    {"shop-broken-token", {eli, english, light}},
    {"shop-larger-text", {ana, english, light, shopsLarger}},
    {"shop-bag-light", {ana, english, light}, Page::bag},
    {"shop-bag-dark", {ana, german, dark}, Page::bag},
    {"shop-bag-empty-light", {ana, english, light}, Page::emptyBag},
    {"shop-sheet-light", {ana, english, light}, Page::product, Open::details},
    {"shop-sheet-dark", {ana, english, dark}, Page::product, Open::details},
    {"shop-sheet-es-light", {ben, spanish, light}, Page::product, Open::details},
    {"shop-sheet-ar-rtl", {ana, arabic, dark}, Page::product, Open::details},
    {"shop-overlay-en-light", {ana, english, light}, Page::product, Open::overlay},
    {"shop-overlay-es-dark", {ana, spanish, dark}, Page::product, Open::overlay},
    {"shop-overlay-ar-rtl", {ana, arabic, light}, Page::product, Open::overlay},
    {"shop-overlay-ja-light", {ana, japanese, light}, Page::product, Open::overlay},
};

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

/// Renders two frames: the first measures the visible part, the second shows what depends on that.
QImage frameOf(QQuickWindow& window) {
  settle();
  window.grabWindow();
  settle();
  return window.grabWindow();
}

const QQuickItem& opener(const QQuickWindow& window, Open what) {
  const QQuickItem* item = what == Open::details
                               ? static_cast<QQuickItem*>(window.findChild<qml::ScoreWidget*>())
                               : window.findChild<qml::InfoWidget*>();
  if (item == nullptr) foundation::fatalError("the shop's page lacks a widget");
  return *item;
}

}  // namespace

QuickPictures::QuickPictures(Shop& shop) : shop_(shop), face_(shop) {
  face_.window().show();
  while (!face_.window().isExposed()) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
}

bool QuickPictures::each(const Keep& keep) {
  const bool hasPages = qt::WebComponentLoader::isThere("QuorixWebQuick");
  return std::ranges::all_of(scenes, [&](const ShopScene& scene) {
    return (scene.open == Open::overlay && !hasPages) || keep(pictureOf(scene), scene.name);
  });
}

QImage QuickPictures::pictureOf(const ShopScene& scene) {
  QQuickWindow& window = face_.window();
  scene.set(shop_);
  const QImage page = frameOf(window);
  if (scene.open == Open::nothing) return page;
  tap(window, opener(window, scene.open));
  const QImage sheet = scene.open == Open::overlay ? frameWithPage([&] { return frameOf(window); })
                                                   : frameOf(window);
  press(window, Qt::Key_Escape);
  settle();
  return sheet;
}

}  // namespace quorix::examples
