#include "QuorixWidgets/score/ScoreWidgetViewModel.h"

#include <utility>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "QuorixWidgets/score/ReturnRate.h"

namespace quorix {
namespace {

constexpr double widgetFontSize = 14;
constexpr double overlayFontSize = 16;
constexpr double discountFrom = 0.1;
constexpr std::int64_t hundredthsInUnit = 100;

}  // namespace

ScoreWidgetViewModel::ScoreWidgetViewModel(std::string clientId, const TokenData& token,
                                           std::string languageCode, const ScoreWidgetStyle& style)
    : baseReturnFee(*this, {}),
      reducedReturnFee(*this, {}),
      hasDiscount(*this, token.score >= discountFrom),
      returnRate(*this, {}),
      styleConfiguration_{style.regularFont, style.semiBoldFont, std::nullopt, false},
      clientId_(std::move(clientId)),
      returnFee_(token.returnsFee),
      score_(token.score),
      locale_{std::move(languageCode), token.currency},
      numberFormatter_(locale_) {
  if (auto text = feeText(returnFee_)) baseReturnFee = *std::move(text);
  getReducedReturnFee(token.discountedReturnsFee);
}

void ScoreWidgetViewModel::getReducedReturnFee(std::int64_t fee) {
  if (auto text = feeText(fee)) reducedReturnFee = *std::move(text);
  returnRate = returnRateText(score_);
}

/// The hundredths are dropped, never rounded.
std::optional<std::string> ScoreWidgetViewModel::feeText(std::int64_t hundredths) const {
  return numberFormatter_.text(hundredths / hundredthsInUnit);
}

const swiftui::Font& ScoreWidgetViewModel::widgetRegularFont() const {
  return widgetRegularFont_.get(styleConfiguration_.regularFont, QuorixFont::regular,
                                widgetFontSize);
}

const swiftui::Font& ScoreWidgetViewModel::widgetSemiBoldFont() const {
  return widgetSemiBoldFont_.get(styleConfiguration_.semiBoldFont, QuorixFont::medium,
                                 widgetFontSize);
}

const swiftui::Font& ScoreWidgetViewModel::overlayRegularFont() const {
  return overlayRegularFont_.get(styleConfiguration_.regularFont, QuorixFont::regular,
                                 overlayFontSize);
}

}  // namespace quorix
