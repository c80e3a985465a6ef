#include "examples/shop/pictures/Pictures.h"

#include <QApplication>
#include <QMouseEvent>
#include <algorithm>

#include "examples/shop/pictures/ShopScene.h"
#include "examples/shop/widgets/WidgetPanel.h"
#include "platform/foundation/Error.h"
#include "qt/WebComponent.h"

namespace quorix::examples {
namespace {

using Open = ShopScene::Open;
using Page = ShopScene::Page;

constexpr ShopScene scenes[] = {
    {"widgets-shop-light", {ana, english, light}},
    {"widgets-shop-dark", {ana, english, dark}},
    {"widgets-shop-es-light", {ben, spanish, light}},
    {"widgets-shop-ar-rtl", {ana, arabic, dark}},
    {"widgets-shop-ja-light", {chie, japanese, light}},
    {"widgets-shop-larger-text", {ana, english, light, shopsLarger}},
    {"widgets-bag-light", {ana, english, light}, Page::bag},
    {"widgets-bag-dark", {ana, german, dark}, Page::bag},
    {"widgets-sheet-light", {ana, english, light}, Page::product, Open::details},
    {"widgets-sheet-dark", {ana, english, dark}, Page::product, Open::details},
    {"widgets-overlay-de-light", {ana, german, light}, Page::product, Open::overlay},
    {"widgets-overlay-fr-dark", {ana, french, dark}, Page::product, Open::overlay},
};

void tap(QWidget& widget) {
  const QPointF point = QRectF(widget.rect()).center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const bool down = type == QEvent::MouseButtonPress;
    QMouseEvent event(type, point, widget.mapToGlobal(point), Qt::LeftButton,
                      down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

void press(QWidget& window, Qt::Key key) {
  QWidget* focus = window.focusWidget();
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier);
    QCoreApplication::sendEvent(focus ? focus : &window, &event);
  }
}

QImage frameOf(QWidget& window) {
  settle();
  QImage image(window.size(), QImage::Format_RGB32);
  window.render(&image);
  return image;
}

WidgetPanel& opener(QWidget& window, Open what) {
  const auto kind = what == Open::details ? WidgetPanel::Kind::scoreRow : WidgetPanel::Kind::info;
  for (WidgetPanel* panel : window.findChildren<WidgetPanel*>()) {
    if (panel->kind() == kind) return *panel;
  }
  foundation::fatalError("the shop's page lacks a widget");
}

}  // namespace

WindowPictures::WindowPictures(Shop& shop) : shop_(shop), face_(shop) { face_.show(); }

bool WindowPictures::each(const Keep& keep) {
  const bool hasPages = qt::WebComponentLoader::isThere("QuorixWebWidgets");
  return std::ranges::all_of(scenes, [&](const ShopScene& scene) {
    return (scene.open == Open::overlay && !hasPages) || keep(pictureOf(scene), scene.name);
  });
}

QImage WindowPictures::pictureOf(const ShopScene& scene) {
  scene.set(shop_);
  const QImage page = frameOf(face_);
  if (scene.open == Open::nothing) return page;
  tap(opener(face_, scene.open));
  const QImage sheet =
      scene.open == Open::overlay ? frameWithPage([&] { return frameOf(face_); }) : frameOf(face_);
  press(face_, Qt::Key_Escape);
  settle();
  return sheet;
}

}  // namespace quorix::examples
