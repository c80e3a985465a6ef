#pragma once

#include <string>
#include <string_view>

#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/swiftui/Text.h"

namespace quorix {

/// The words of the score row and its sheet: the table's texts, and the accessibility labels that
/// are composed of them and the figures. A missing text is empty.
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
