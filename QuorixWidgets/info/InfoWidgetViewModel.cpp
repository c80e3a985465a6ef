#include "QuorixWidgets/info/InfoWidgetViewModel.h"

#include <string_view>

#include "QuorixWidgets/info/InfoTitle.h"
#include "QuorixWidgets/localization/LocalizedString.h"

namespace quorix {
namespace {

using swiftui::Text;

constexpr double fontSize = 13;
constexpr double lowUpTo = 30;
constexpr double mediumUpTo = 50;

}  // namespace

const swiftui::Font& InfoWidgetViewModel::regularFont() const {
  return regularFont_.get(styleConfiguration.regularFont, QuorixFont::regular, fontSize);
}

const swiftui::Font& InfoWidgetViewModel::semiBoldFont() const {
  return semiBoldFont_.get(styleConfiguration.semiBoldFont, QuorixFont::medium, fontSize);
}

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

std::optional<Text> InfoWidgetViewModel::getTitle() const {
  if (!userDetails) return std::nullopt;
  const double percentile = userDetails->returnPercentile;
  const auto text = [&](std::string_view key) { return Text::verbatim(localized(key, locale)); };
  const auto rate = [&](std::string_view key, double figure) {
    return Text::verbatim(localized(key, locale, {figure}));
  };
  const bool low = percentile <= lowUpTo;
  const Text start = low ? text("widget-title-start") : Text::verbatim("");
  // A high share of returns is told as how many return still more.
  const Text figure = low ? rate("widget-title-return-rate-low", percentile)
                      : percentile <= mediumUpTo
                          ? rate("widget-title-return-rate-medium", percentile)
                          : rate("widget-title-return-rate-high", 100 - percentile);
  return start.bold() + figure + text("widget-read-more").underline() + text("widget-title-end");
}

}  // namespace quorix
