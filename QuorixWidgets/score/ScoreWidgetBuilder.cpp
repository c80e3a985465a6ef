#include "QuorixWidgets/score/ScoreWidgetBuilder.h"

#include <memory>
#include <string>

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
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

void prefetch(std::string_view locale) { LocalizationRepository::prefetch(locale); }

}  // namespace quorix
