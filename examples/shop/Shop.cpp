#include "examples/shop/Shop.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QVariantMap>

#include "QuorixWidgets/localization/TovaFont.h"
#include "examples/shop/Shopper.h"

namespace quorix::examples {
namespace {

QVariantMap language(const char* name, const char* code, bool rightToLeft = false) {
  return {{"name", QString::fromUtf8(name)}, {"code", code}, {"rightToLeft", rightToLeft}};
}

QVariantMap face(const char* name, const char* regular, const char* semiBold,
                 const char* textSize) {
  return {{"name", name}, {"regular", regular}, {"semiBold", semiBold}, {"textSize", textSize}};
}

}  // namespace

Shop::Shop(QObject* parent) : QObject(parent) { qGuiApp->installEventFilter(this); }

QVariantList Shop::shoppers() {
  QVariantList list;
  for (const Shopper& shopper : Shopper::all()) {
    list.append(QVariantMap{{"name", shopper.name},
                            {"token", QString::fromStdString(shopper.token)},
                            {"price", shopper.price}});
  }
  return list;
}

QVariantList Shop::languages() {
  return {
      language("English", "en"),
      language("Español", "es"),
      language("Deutsch", "de"),
      language("العربية", "ar", true),
      language("Français (no table)", "fr"),
  };
}

QVariantList Shop::faces() {
  const char* regular = TovaFont::regular().name().c_str();
  const char* semiBold = "TovaSansLatin-SemiBold";
  return {
      face("Widget's own face", "", "", "large"),
      face("Shop's face", regular, semiBold, "large"),
      face("Shop's face, larger", regular, semiBold, "extraExtraExtraLarge"),
      face("Shop's face, largest", regular, semiBold, "accessibilityLarge"),
  };
}

bool Shop::desktopIsDark() {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

bool Shop::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) {
    emit desktopChanged();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace quorix::examples
