#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "platform/foundation/URLSession.h"
#include "qt/Picture.h"
#include "tests/qt/MatchesPicture.h"

namespace quorix {
namespace {

/// The name of a reference picture, which says what is on it.
class ScoreWidgetPicture : public ::testing::TestWithParam<const char*> {
 protected:
  static bool says(const std::string& word) {
    return ("-" + std::string(GetParam()) + "-").find("-" + word + "-") != std::string::npos;
  }

  static swiftui::View view() {
    const std::string locale = says("es") ? "es" : "en";
    // The library's own faces keep their size, so large text is shown in a host's.
    const ScoreWidgetStyle style =
        says("large") ? ScoreWidgetStyle{TovaFont::regular().name(), "TovaSansLatin-SemiBold"}
                      : ScoreWidgetStyle{std::nullopt, std::nullopt};
    const TokenData token{says("discount") ? 0.82 : 0.05, "EUR", 499, 299};
    return ScoreWidgetView{std::make_shared<ScoreWidgetViewModel>("shop", token, locale, style),
                           LocalizationRepository::make(locale)};
  }

  static qt::PictureOptions options() {
    qt::PictureOptions options;
    options.width = 343;
    options.sheet = says("sheet");
    swiftui::Environment& environment = options.environment;
    environment.language = "en";
    if (says("dark")) environment.appearance = graphics::Appearance::dark;
    if (says("rtl")) environment.direction = layout::LayoutDirection::rightToLeft;
    if (says("large")) environment.textSize = swiftui::ContentSizeCategory::extraExtraExtraLarge;
    if (says("3x")) environment.scale = 3;
    return options;
  }
};

TEST_P(ScoreWidgetPicture, LooksAsItDid) {
  const auto offline = foundation::URLSession::shared().registerProtocol([](const auto&) {
    return foundation::URLResponse{foundation::Error{"Test", 1, "offline"}, {}, 0};
  });
  EXPECT_TRUE(testing::matchesPicture(qt::picture(view(), options()), GetParam()));
}

INSTANTIATE_TEST_SUITE_P(RowsAndSheets, ScoreWidgetPicture,
                         ::testing::Values("row-discount", "row-discount-dark", "row-discount-3x",
                                           "row-discount-rtl", "row-discount-large-text",
                                           "row-plain-es", "row-plain-dark-3x", "sheet-discount",
                                           "sheet-discount-dark-3x", "sheet-plain-es",
                                           "sheet-discount-es-dark", "sheet-discount-rtl",
                                           "sheet-discount-large-text"),
                         [](const auto& tested) {
                           std::string name = tested.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace quorix
