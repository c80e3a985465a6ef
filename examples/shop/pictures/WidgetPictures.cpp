#include "examples/shop/pictures/Pictures.h"

#include <QQuickWindow>
#include <algorithm>

#include "QuorixWidgets/info/InfoWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "examples/shop/Shop.h"
#include "examples/shop/pictures/ShopScene.h"
#include "platform/swiftui/UIViewRepresentable.h"
#include "qt/Picture.h"
#include "qt/quick/ViewItem.h"

namespace quorix::examples {
namespace {

enum class Kind { row, sheet, info, borderedInfo, uiInfo };

struct Scene {
  const char* name;
  Kind kind;
  Language language;
  Appearance appearance = light;
  Who who = ana;
};

constexpr Scene scenes[] = {
    {"row-discount-en-light", Kind::row, english},
    {"row-discount-en-dark", Kind::row, english, dark},
    {"row-no-discount-en-light", Kind::row, english, light, ben},
    {"row-yen-en-light", Kind::row, english, light, chie},
    {"row-kronor-en-light", Kind::row, english, light, dana},
    {"row-discount-es-light", Kind::row, spanish},
    {"row-discount-de-light", Kind::row, german},
    {"row-fr-falls-back-to-english", Kind::row, french},
    {"row-ar-rtl", Kind::row, arabic},
    {"row-yen-ja-light", Kind::row, japanese, light, chie},
    {"sheet-discount-en-light", Kind::sheet, english},
    {"sheet-discount-en-dark", Kind::sheet, english, dark},
    {"sheet-no-discount-es-light", Kind::sheet, spanish, light, ben},
    {"sheet-no-discount-es-dark", Kind::sheet, spanish, dark, ben},
    {"sheet-discount-de-light", Kind::sheet, german, light, dana},
    {"sheet-ar-rtl", Kind::sheet, arabic},
    {"info-en-light", Kind::info, english},
    {"info-en-dark", Kind::info, english, dark},
    {"info-es-light", Kind::info, spanish},
    {"info-de-light", Kind::info, german},
    {"info-fr-light", Kind::info, french},
    {"info-ar-rtl", Kind::info, arabic},
    {"info-ja-light", Kind::info, japanese},
    {"info-ja-dark", Kind::info, japanese, dark},
    {"info-border-en-light", Kind::borderedInfo, english},
    {"info-border-en-dark", Kind::borderedInfo, english, dark},
    {"info-imperative-en-light", Kind::uiInfo, english},
    {"info-imperative-en-dark", Kind::uiInfo, english, dark},
    {"info-imperative-es-light", Kind::uiInfo, spanish},
    {"info-imperative-de-light", Kind::uiInfo, german},
    {"info-imperative-ar-rtl", Kind::uiInfo, arabic},
    {"info-imperative-ja-light", Kind::uiInfo, japanese},
};

swiftui::View widgetOf(const Scene& scene) {
  const std::string locale = ShopLanguage::all().at(scene.language).code.toStdString();
  const InfoWidgetStyle plain{std::nullopt, std::nullopt, std::nullopt,
                              scene.kind == Kind::borderedInfo};
  switch (scene.kind) {
    case Kind::info:
    case Kind::borderedInfo:
      return InfoWidgetBuilder::buildSwiftUIInfoWidgetView(locale, plain);
    case Kind::uiInfo:
      return swiftui::hosting(InfoWidgetBuilder::buildUIKitInfoWidgetView(locale, plain));
    default:
      return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(Shop::clientId().toStdString(), locale,
                                                             Shopper::all().at(scene.who).token,
                                                             {std::nullopt, std::nullopt});
  }
}

/// Shows `widget` until it has fetched its language's texts, which it keeps.
void letSpeak(const swiftui::View& widget) {
  QQuickWindow screen;
  new qt::ViewItem(widget, screen.contentItem());
  screen.show();
  screen.grabWindow();  // renders a frame, in which the widget requests its texts
  settle();
}

QImage pictureOf(const Scene& scene) {
  constexpr double margin = 16;
  const swiftui::View widget = widgetOf(scene).padding(margin);
  qt::PictureOptions options;
  options.environment.appearance =
      scene.appearance == dark ? graphics::Appearance::dark : graphics::Appearance::light;
  options.environment.direction = ShopLanguage::all().at(scene.language).rightToLeft
                                      ? layout::LayoutDirection::rightToLeft
                                      : layout::LayoutDirection::leftToRight;
  options.environment.scale = 2;
  options.sheet = scene.kind == Kind::sheet;
  letSpeak(widget);
  return qt::picture(widget, options);
}

}  // namespace

bool eachWidgetPicture(const Keep& keep) {
  return std::ranges::all_of(
      scenes, [&](const Scene& scene) { return keep(pictureOf(scene), scene.name); });
}

}  // namespace quorix::examples
