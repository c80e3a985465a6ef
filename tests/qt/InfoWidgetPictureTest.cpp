#include <memory>
#include <optional>
#include <string>

#include "QuorixWidgets/info/InfoWidgetView.h"
#include "QuorixWidgets/localization/TovaFont.h"
#include "tests/qt/NamedPicture.h"

namespace quorix {
namespace {

class InfoWidgetPicture : public testing::NamedPicture {};

TEST_P(InfoWidgetPicture, LooksAsItDid) {
  const std::string locale = says("de") ? "de" : says("ar") ? "ar" : "en";
  SwiftUIStyleConfiguration style{{}, {}, {}, says("border")};
  // The library's own faces keep their size, so large text is shown in a host's.
  if (says("large")) {
    style = {TovaFont::regular().name(), "TovaSansLatin-SemiBold", {}, says("border")};
  }
  const auto name = says("named") ? std::optional<std::string>("Ann") : std::nullopt;
  const auto model = std::make_shared<InfoWidgetViewModel>(name, locale, style);
  if (says("personal")) model->userDetails = UserDetails{0, 0, 12};
  expectLooksAsItDid(InfoWidgetView{model});
}

INSTANTIATE_TEST_SUITE_P(Widgets, InfoWidgetPicture,
                         ::testing::Values("info", "info-dark-3x", "info-de-2x", "info-ar-2x",
                                           "info-border", "info-personal-2x",
                                           "info-border-large-text", "info-sheet",
                                           "info-sheet-named-rtl-dark"),
                         testing::pictureTestName);

}  // namespace
}  // namespace quorix
