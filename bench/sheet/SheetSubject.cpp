#include "bench/sheet/SheetSubject.h"

#include "QuorixWidgets/data/TokenData.h"
#include "QuorixWidgets/localization/LocalizationRepository.h"
#include "QuorixWidgets/score/ScoreWidgetTexts.h"
#include "QuorixWidgets/score/ScoreWidgetViewModel.h"

namespace quorix::bench {

SheetSubject::SheetSubject() : properties_(shopper_.properties()) {
  const auto figures = parseTokenData(shopper_.token);
  if (!figures) std::abort();
  const ScoreWidgetViewModel model("my-shop", *figures, "en", {std::nullopt, std::nullopt});
  const auto localization = LocalizationRepository::make("en");
  const ScoreWidgetTexts texts(model, *localization);
  const auto add = [&](const char* name, std::string_view text) {
    properties_.insert(QLatin1String(name),
                       QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
  };
  add("feeName", texts.text("returns", "fee"));
  add("rateName", texts.text("returns", "rate"));
  add("rate", model.returnRate.get());
  add("disclaimer", texts.text("returns", "disclaimer"));
  add("closeName", texts.text("actions", "close"));
}

}  // namespace quorix::bench
