#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/localization/StyleConfiguration.h"
#include "QuorixWidgets/score/ScoreWidgetStyle.h"
#include "platform/combine/ObservableObject.h"
#include "platform/foundation/CurrencyFormatter.h"
#include "platform/foundation/Export.h"
#include "platform/swiftui/Text.h"

namespace quorix {

/// Whether the return rate of `score` fits 64 bits. That of every issued score does, but a token
/// may contain any number: check before making a view model. Any thread.
QUORIX_EXPORT bool hasReturnRate(double score);

/// The return rate of `score`, 1 - score, in whole percent, with halves rounded away from zero:
/// 0.355 gives "65%". Stops the process if `hasReturnRate` is false. Any thread.
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

  /// Sets `reducedReturnFee` from `fee`, in hundredths of the currency unit, and sets `returnRate`.
  /// Stops the process for a rate beyond 64 bits.
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

/// The texts of the score row and its sheet: those of the table, and the accessibility labels that
/// combine them with the figures. A missing text is empty.
class ScoreWidgetTexts {
 public:
  ScoreWidgetTexts(const ScoreWidgetViewModel& model, const LocalizationRepository& localization)
      : model_(model), table_(*localization.strings.get()) {}

  std::string_view text(std::string_view section, std::string_view key) const {
    return table_.text(section, key);
  }
  swiftui::Text verbatim(std::string_view section, std::string_view key) const {
    return swiftui::Text::verbatim(text(section, key));
  }

  swiftui::Text rowLabel() const;
  swiftui::Text feeLabel() const;
  swiftui::Text rateLabel() const;

 private:
  const ScoreWidgetViewModel& model_;
  const TranslationTable& table_;
};

}  // namespace quorix
