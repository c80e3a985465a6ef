#include "QuorixWidgets/info/InfoWidgetViewModel.h"

#include <string_view>
#include <utility>

#include "QuorixWidgets/localization/Strings.h"
#include "QuorixWidgets/localization/UIFont.h"
#include "platform/foundation/Error.h"
#include "platform/foundation/UnicodeText.h"
#include "platform/text/TextBound.h"

namespace quorix {
namespace {

std::vector<InfoTitlePart> partsOf(std::string_view locale) {
  // No more than this is shown. Comparing all characters of an endless title would take too long.
  const auto words = [&](std::string_view key) { return text::bounded(localized(key, locale)); };
  return splitInfoTitle(words("info-widget-title"), words("info-widget-title-number"));
}

}  // namespace

std::vector<InfoTitlePart> splitInfoTitle(std::string_view title, std::string_view number) {
  auto pieces = foundation::components(title, number);
  std::erase_if(pieces, [](std::string_view piece) { return piece.empty(); });
  if (pieces.empty()) return {};
  const auto text = [](std::string_view piece) { return InfoTitlePart{std::string(piece), false}; };
  InfoTitlePart figure{std::string(number), true};
  if (pieces.size() == 1) return {std::move(figure), text(pieces[0])};
  return {text(pieces[0]), std::move(figure), text(pieces[1])};
}

bool hasInfoTitle(std::string_view locale) { return !partsOf(locale).empty(); }

std::vector<InfoTitlePart> infoTitle(std::string_view locale) {
  auto parts = partsOf(locale);
  if (parts.empty()) foundation::fatalError("Index out of range", "QuorixWidgets/InfoTitle");
  return parts;
}

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
  // Above the medium band, the text gives the share of shoppers with more returns.
  const Text figure = low ? rate("widget-title-return-rate-low", percentile)
                      : percentile <= mediumUpTo
                          ? rate("widget-title-return-rate-medium", percentile)
                          : rate("widget-title-return-rate-high", 100 - percentile);
  return Text::verbatim(boldStart()).bold() + figure + text("widget-read-more").underline() +
         text("widget-title-end");
}

namespace {

constexpr double fontSize = 13;

/// Cached for all widgets: the library's own face.
template <const QuorixFont& (*face)()>
const uikit::UIFont::Ref& ownFont() {
  static const auto font = UIFont::Quorix::fixed(face(), fontSize);
  return font;
}

const uikit::UIFont::Ref& cached(uikit::UIFont::Ref& cache,
                                 const std::optional<std::string>& styleFace,
                                 const uikit::UIFont::Ref& (*own)()) {
  if (!cache && styleFace) cache = uikit::UIFont::named(*styleFace, fontSize);
  if (!cache) cache = own();
  return cache;
}

}  // namespace

UIInfoWidgetViewModel::UIInfoWidgetViewModel(std::optional<std::string> shopper,
                                             std::string languageCode,
                                             UIKitStyleConfiguration style)
    : name(std::move(shopper)),
      locale(std::move(languageCode)),
      titleText(*this, {}),
      styleConfiguration(std::move(style)) {
  titleText = getInfoTitle();
}

const uikit::UIFont::Ref& UIInfoWidgetViewModel::regularFont() const {
  return cached(regularFont_, styleConfiguration.regularFont, ownFont<QuorixFont::regular>);
}

const uikit::UIFont::Ref& UIInfoWidgetViewModel::semiBoldFont() const {
  return cached(semiBoldFont_, styleConfiguration.semiBoldFont, ownFont<QuorixFont::medium>);
}

uikit::NSAttributedString UIInfoWidgetViewModel::getInfoTitle() const {
  uikit::NSMutableAttributedString title;
  for (const InfoTitlePart& part : infoTitle(locale)) {
    const auto& font = part.isNumber ? semiBoldFont() : regularFont();
    title.append(uikit::NSAttributedString(part.text, {.font = font}));
  }
  return title.shared();
}

}  // namespace quorix
