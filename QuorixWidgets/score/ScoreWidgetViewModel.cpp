#include "QuorixWidgets/score/ScoreWidgetViewModel.h"

#include <cmath>
#include <utility>

#include "platform/foundation/Error.h"

namespace quorix {
namespace {

constexpr double widgetFontSize = 14;
constexpr double overlayFontSize = 16;
constexpr double discountFrom = 0.1;
constexpr std::int64_t hundredthsInUnit = 100;

double percentOf(double score) { return std::round((1.0 - score) * 100.0); }

}  // namespace

bool hasReturnRate(double score) {
  constexpr double limit = 0x1p63;
  const double percent = percentOf(score);
  return percent >= -limit && percent < limit;  // false for NaN too
}

std::string returnRateText(double score) {
  if (!hasReturnRate(score)) {
    foundation::fatalError("the return rate lies outside the 64-bit range", "ReturnRate");
  }
  return std::to_string(static_cast<std::int64_t>(percentOf(score))) + "%";
}

ScoreWidgetViewModel::ScoreWidgetViewModel(std::string clientId, const TokenData& token,
                                           std::string languageCode, const ScoreWidgetStyle& style)
    : baseReturnFee(*this, {}),
      reducedReturnFee(*this, {}),
      hasDiscount(*this, token.score >= discountFrom),
      returnRate(*this, {}),
      widgetRegularFont(style.regularFont, QuorixFont::regular, widgetFontSize),
      widgetSemiBoldFont(style.semiBoldFont, QuorixFont::medium, widgetFontSize),
      overlayRegularFont(style.regularFont, QuorixFont::regular, overlayFontSize),
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

/// Drops the hundredths without rounding.
std::optional<std::string> ScoreWidgetViewModel::feeText(std::int64_t hundredths) const {
  return numberFormatter_.text(hundredths / hundredthsInUnit);
}

using swiftui::Text;

Text ScoreWidgetTexts::rowLabel() const {
  const std::string title(text("returns", "title"));
  if (!model_.hasDiscount) return Text::localized("%@ %@", {title, model_.baseReturnFee});
  return Text::localized("%@ %@ %@, %@ %@",
                         {title, std::string(text("labels", "discounted")), model_.reducedReturnFee,
                          std::string(text("labels", "original")), model_.baseReturnFee});
}

Text ScoreWidgetTexts::feeLabel() const {
  if (!model_.hasDiscount) return rowLabel();
  return Text::localized("%@ %@, %@ %@",
                         {std::string(text("labels", "discounted")), model_.reducedReturnFee,
                          std::string(text("labels", "original")), model_.baseReturnFee});
}

Text ScoreWidgetTexts::rateLabel() const {
  return Text::localized("%@ %@", {std::string(text("returns", "rate")), model_.returnRate});
}

}  // namespace quorix
