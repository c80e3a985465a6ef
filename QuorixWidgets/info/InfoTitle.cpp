#include "QuorixWidgets/info/InfoTitle.h"

#include "QuorixWidgets/localization/LocalizedString.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/TextSplitting.h"

namespace quorix {

std::vector<InfoTitlePart> splitInfoTitle(std::string_view title, std::string_view number) {
  auto pieces = foundation::components(title, number);
  std::erase_if(pieces, [](std::string_view piece) { return piece.empty(); });
  if (pieces.empty()) return {};
  const auto text = [](std::string_view piece) { return InfoTitlePart{std::string(piece), false}; };
  InfoTitlePart figure{std::string(number), true};
  if (pieces.size() == 1) return {std::move(figure), text(pieces[0])};
  return {text(pieces[0]), std::move(figure), text(pieces[1])};
}

std::vector<InfoTitlePart> infoTitle(std::string_view locale) {
  auto parts = splitInfoTitle(localized("info-widget-title", locale),
                              localized("info-widget-title-number", locale));
  if (parts.empty()) foundation::fatalError("Index out of range", "QuorixWidgets/InfoTitle");
  return parts;
}

}  // namespace quorix
