#include "QuorixWidgets/score/ScoreWidgetTexts.h"

namespace quorix {

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
