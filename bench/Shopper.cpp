#include "bench/Shopper.h"

#include <cstdlib>
#include <memory>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/Color.h"
#include "QuorixWidgets/localization/ColorResource.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetTexts.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "examples/common/TokenMint.h"
#include "qt/Picture.h"

namespace quorix::bench {
namespace {

constexpr const char* kClient = "my-shop";
constexpr const char* kLanguage = "en";

QColor resolved(const swiftui::Color& color) {
  const auto rgba = color.resolve(graphics::Appearance::light);
  if (!rgba) std::abort();
  return QColor(rgba->red, rgba->green, rgba->blue, rgba->alpha);
}

}  // namespace

Shopper Shopper::make(std::size_t number) {
  const auto fee = static_cast<std::int64_t>(number) * 100;
  const TokenData figures{0.82, "EUR", fee + 700, fee + 300};
  const ScoreWidgetViewModel model(kClient, figures, kLanguage, {std::nullopt, std::nullopt});
  const auto localization = LocalizationRepository::make(kLanguage);
  const ScoreWidgetTexts texts(model, *localization);
  const auto text = [](std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  };
  return {examples::mintToken(figures),       text(texts.text("returns", "title")),
          text(model.reducedReturnFee.get()), text(model.baseReturnFee.get()),
          text(texts.rowLabel().resolved()),  text(texts.text("labels", "hint"))};
}

swiftui::View Shopper::row() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(kClient, kLanguage, token,
                                                         {std::nullopt, std::nullopt});
}

QColor inkColor() { return resolved(Color::defaultFontColor()); }
QColor fadedColor() { return resolved(ColorResource::grey2()); }

void loadFaces() {
  if (qt::picture(Shopper::make(0).row()).isNull()) std::abort();
}

}  // namespace quorix::bench
