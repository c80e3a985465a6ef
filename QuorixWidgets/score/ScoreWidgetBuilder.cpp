#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

#include <chrono>
#include <memory>
#include <string>
#include <variant>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/localization/Translations.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "platform/foundation/URLSession.h"
#include "platform/swiftui/Elements.h"

namespace quorix {

swiftui::View ScoreWidgetBuilder::buildSwiftUIScoreWidgetView(std::string_view clientId,
                                                              std::string_view locale,
                                                              std::string_view token,
                                                              const ScoreWidgetStyle& style) {
  const auto empty = [] { return swiftui::Conditional(false, {}); };
  if (token.empty()) return empty();
  const auto data = parseTokenData(token);
  if (!data || !hasReturnRate(data->score) || clientId.empty()) return empty();
  const std::string languageCode(locale);
  ScoreWidgetView view{
      std::make_shared<ScoreWidgetViewModel>(std::string(clientId), *data, languageCode, style),
      LocalizationRepository::make(languageCode)};
  return swiftui::Conditional(true, std::move(view));
}

void prefetch(std::string_view locale) {
  using foundation::URLResponse;
  const auto url = LocalizationRepository::address(locale);
  if (!url) return;
  const auto isTable = [](const URLResponse& response) {
    return !std::holds_alternative<foundation::Error>(readTranslationTable(response));
  };
  foundation::URLSession::shared().prefetch(*url, std::chrono::minutes(5), isTable);
}

}  // namespace quorix
