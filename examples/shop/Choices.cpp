#include "examples/shop/Choices.h"
#include "QuorixWidgets/localization/TovaFont.h"

namespace quorix::examples {

using swiftui::ContentSizeCategory;

const std::vector<TextFace>& TextFace::all() {
  static const auto regular = QString::fromStdString(TovaFont::regular().name());
  static const auto semiBold = QStringLiteral("TovaSansLatin-SemiBold");
  static const std::vector<TextFace> faces = {
      {QStringLiteral("Widget's own face"), {}, {}, {}},
      {QStringLiteral("Shop's face"), regular, semiBold, {}},
      {QStringLiteral("Shop's face, larger"), regular, semiBold,
       ContentSizeCategory::extraExtraExtraLarge},
      {QStringLiteral("Shop's face, largest"), regular, semiBold,
       ContentSizeCategory::accessibilityLarge},
  };
  return faces;
}

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
