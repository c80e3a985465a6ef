#include "QuorixWidgets/info/InfoTitle.h"

#include "QuorixWidgets/localization/Strings.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/UnicodeText.h"
#include "platform/text/TextBound.h"

namespace quorix {
namespace {

std::vector<InfoTitlePart> partsOf(std::string_view locale) {
  // Only this much is shown, and comparing all characters of an endless title would take long.
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

}  // namespace quorix
