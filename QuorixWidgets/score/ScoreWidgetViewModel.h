#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/StyleConfiguration.h"
#include "QuorixWidgets/score/ScoreWidgetStyle.h"
#include "platform/combine/ObservableObject.h"
#include "platform/foundation/CurrencyFormatter.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/Font.h"

namespace quorix {

/// Whether `score` has a return rate, one that fits 64 bits. Every issued score has, but a token
/// may carry any number: check before making a view model. Any thread.
QUORIX_EXPORT bool hasReturnRate(double score);

/// The return rate that belongs to `score`, 1 - score, in whole percent, halves away from zero:
/// 0.355 gives "65%". A score that has none stops the process. Any thread.
std::string returnRateText(double score);

/// The display texts of a score widget, made once from a token's figures, and its fonts. Main
/// thread.
class ScoreWidgetViewModel final : public combine::ObservableObject {
 public:
  QUORIX_EXPORT ScoreWidgetViewModel(std::string clientId, const TokenData& token,
                                     std::string languageCode, const ScoreWidgetStyle& style);

  combine::Published<std::string> baseReturnFee;
  combine::Published<std::string> reducedReturnFee;
  combine::Published<bool> hasDiscount;
  combine::Published<std::string> returnRate;

  const StyleFont widgetRegularFont;   ///< 14 points
  const StyleFont widgetSemiBoldFont;  ///< 14 points
  const StyleFont overlayRegularFont;  ///< 16 points

  /// Sets `reducedReturnFee` from `fee`, in hundredths of the currency unit, and `returnRate`. A
  /// rate beyond 64 bits stops the process.
  void getReducedReturnFee(std::int64_t fee);

 private:
  std::optional<std::string> feeText(std::int64_t hundredths) const;

  SwiftUIStyleConfiguration styleConfiguration_;
  std::string clientId_;
  std::int64_t returnFee_;
  double score_;
  foundation::Locale locale_;
  foundation::CurrencyFormatter numberFormatter_;
};

}  // namespace quorix
