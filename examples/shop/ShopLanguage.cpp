#include "examples/shop/ShopLanguage.h"

namespace quorix::examples {

const std::vector<ShopLanguage>& ShopLanguage::all() {
  static const std::vector<ShopLanguage> languages = {
      {QStringLiteral("English"), QStringLiteral("en")},
      {QStringLiteral("Español"), QStringLiteral("es")},
      {QStringLiteral("Deutsch"), QStringLiteral("de")},
      {QStringLiteral("العربية"), QStringLiteral("ar"), true},
      {QStringLiteral("Français (row has no table)"), QStringLiteral("fr")},
      {QStringLiteral("日本語"), QStringLiteral("ja")},
  };
  return languages;
}

}  // namespace quorix::examples
