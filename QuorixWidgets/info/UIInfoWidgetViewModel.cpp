#include "QuorixWidgets/info/UIInfoWidgetViewModel.h"

#include <utility>

#include "QuorixWidgets/info/InfoTitle.h"
#include "QuorixWidgets/localization/UIFont.h"

namespace quorix {
namespace {

constexpr double fontSize = 13;

const uikit::UIFont::Ref& cached(uikit::UIFont::Ref& cache,
                                 const std::optional<std::string>& styleFace,
                                 const QuorixFont& (*ownFace)()) {
  if (!cache && styleFace) cache = uikit::UIFont::named(*styleFace, fontSize);
  if (!cache) cache = UIFont::Quorix::fixed(ownFace(), fontSize);
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
  return cached(regularFont_, styleConfiguration.regularFont, QuorixFont::regular);
}

const uikit::UIFont::Ref& UIInfoWidgetViewModel::semiBoldFont() const {
  return cached(semiBoldFont_, styleConfiguration.semiBoldFont, QuorixFont::medium);
}

uikit::NSAttributedString UIInfoWidgetViewModel::getInfoTitle() const {
  uikit::NSMutableAttributedString title;
  for (const InfoTitlePart& part : infoTitle(locale)) {
    const auto& font = part.isNumber ? semiBoldFont() : regularFont();
    title.append(uikit::NSAttributedString(part.text, {.font = font}));
  }
  return title;
}

}  // namespace quorix
