#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/StyleFont.h"
#include "QuorixWidgets/localization/SwiftUIStyleConfiguration.h"
#include "QuorixWidgets/score/ScoreWidgetStyle.h"
#include "platform/combine/ObservableObject.h"
#include "platform/foundation/CurrencyFormatter.h"
#include "platform/foundation/Export.h"
#include "platform/foundation/Locale.h"
#include "platform/swiftui/Font.h"

namespace quorix {

/// Everything that a score widget shows, as display text, made once from a token's figures. The
/// formatter and the fonts belong to the model. Main thread.
class ScoreWidgetViewModel final : public combine::ObservableObject {
 public:
  QUORIX_EXPORT ScoreWidgetViewModel(std::string clientId, const TokenData& token,
                                     std::string languageCode, const ScoreWidgetStyle& style);

  combine::Published<std::string> baseReturnFee;
  combine::Published<std::string> reducedReturnFee;
  combine::Published<bool> hasDiscount;
  combine::Published<std::string> returnRate;

  /// Sets the reduced fee's text from `fee`, in hundredths of the currency unit, and the rate's.
  /// A rate beyond 64 bits stops the process.
  void getReducedReturnFee(std::int64_t fee);

  /// 14 points.
  const swiftui::Font& widgetRegularFont() const;
  /// 14 points.
  const swiftui::Font& widgetSemiBoldFont() const;
  /// 16 points.
  const swiftui::Font& overlayRegularFont() const;

 private:
  std::optional<std::string> feeText(std::int64_t hundredths) const;

  mutable StyleFont widgetRegularFont_;
  mutable StyleFont widgetSemiBoldFont_;
  mutable StyleFont overlayRegularFont_;
  SwiftUIStyleConfiguration styleConfiguration_;
  std::string clientId_;
  std::int64_t returnFee_;
  double score_;
  foundation::Locale locale_;
  foundation::CurrencyFormatter numberFormatter_;
};

}  // namespace quorix
