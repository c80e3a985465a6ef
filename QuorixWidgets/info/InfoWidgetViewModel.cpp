#include "QuorixWidgets/info/InfoWidgetViewModel.h"

#include <string_view>

#include "QuorixWidgets/info/InfoTitle.h"
#include "QuorixWidgets/localization/Strings.h"

namespace quorix {
namespace {

using swiftui::Text;

constexpr double lowUpTo = 30;
constexpr double mediumUpTo = 50;

}  // namespace

Text InfoWidgetViewModel::getInfoTitle() const {
  std::optional<Text> title;
  for (const InfoTitlePart& part : infoTitle(locale)) {
    const Text text = Text::verbatim(part.text);
    Text run = part.isNumber ? text.font(semiBoldFont()).fontWeight(swiftui::FontWeight::semibold)
                             : text.font(regularFont());
    title = title ? *std::move(title) + std::move(run) : std::move(run);
  }
  return *std::move(title);
}

std::string InfoWidgetViewModel::boldStart() const {
  const bool low = userDetails && userDetails->returnPercentile <= lowUpTo;
  return low ? localized("widget-title-start", locale) : std::string();
}

std::optional<Text> InfoWidgetViewModel::getTitle() const {
  if (!userDetails) return std::nullopt;
  const double percentile = userDetails->returnPercentile;
  const auto text = [&](std::string_view key) { return Text::verbatim(localized(key, locale)); };
  const auto rate = [&](std::string_view key, double figure) {
    return Text::verbatim(localized(key, locale, {figure}));
  };
  const bool low = percentile <= lowUpTo;
  // Above the medium band the text gives the share of shoppers who return more.
  const Text figure = low ? rate("widget-title-return-rate-low", percentile)
                      : percentile <= mediumUpTo
                          ? rate("widget-title-return-rate-medium", percentile)
                          : rate("widget-title-return-rate-high", 100 - percentile);
  return Text::verbatim(boldStart()).bold() + figure + text("widget-read-more").underline() +
         text("widget-title-end");
}

}  // namespace quorix
