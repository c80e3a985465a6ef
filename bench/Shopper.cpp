#include "bench/Shopper.h"

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetBuilder.h"
#include "QuorixWidgets/score/ScoreWidgetTexts.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "bench/LabelsRow.h"
#include "bench/Palette.h"
#include "examples/common/TokenMint.h"

namespace quorix::bench {
namespace {

constexpr const char* kClient = "my-shop";
constexpr const char* kLanguage = "en";

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace

Shopper::Shopper(std::size_t number) {
  const auto fees = static_cast<std::int64_t>(number) * 100;
  const TokenData figures{0.82, "EUR", fees + 700, fees + 300};
  const ScoreWidgetViewModel model(kClient, figures, kLanguage, {std::nullopt, std::nullopt});
  const auto localization = LocalizationRepository::make(kLanguage);
  const ScoreWidgetTexts texts(model, *localization);
  token = examples::mintToken(figures);
  title = text(texts.text("returns", "title"));
  fee = text(model.reducedReturnFee.get());
  baseFee = text(model.baseReturnFee.get());
  label = text(texts.rowLabel().resolved());
  hint = text(texts.text("labels", "hint"));
}

swiftui::View Shopper::ours() const {
  return ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(kClient, kLanguage, token,
                                                         {std::nullopt, std::nullopt});
}

QVariantMap Shopper::properties() const {
  static const QColor ink = inkColor(), faded = fadedColor();
  return {{"title", title}, {"fee", fee}, {"baseFee", baseFee}, {"label", label},
          {"hint", hint},   {"ink", ink}, {"faded", faded}};
}

QWidget* Shopper::labels(QWidget* parent) const { return new LabelsRow(*this, parent); }

}  // namespace quorix::bench
