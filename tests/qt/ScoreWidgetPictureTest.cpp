#include <memory>
#include <string>

#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "tests/qt/NamedPicture.h"

namespace quorix {
namespace {

class ScoreWidgetPicture : public testing::NamedPicture {};

TEST_P(ScoreWidgetPicture, LooksAsItDid) {
  const std::string locale = says("es") ? "es" : "en";
  // The library's own faces keep their size, so large text is shown in a host's.
  const ScoreWidgetStyle style =
      says("large") ? ScoreWidgetStyle{TovaFont::regular().name(), "TovaSansLatin-SemiBold"}
                    : ScoreWidgetStyle{std::nullopt, std::nullopt};
  const TokenData token{says("discount") ? 0.82 : 0.05, "EUR", 499, 299};
  expectLooksAsItDid(
      ScoreWidgetView{std::make_shared<ScoreWidgetViewModel>("shop", token, locale, style),
                      LocalizationRepository::make(locale)});
}

INSTANTIATE_TEST_SUITE_P(RowsAndSheets, ScoreWidgetPicture,
                         ::testing::Values("row-discount", "row-discount-dark", "row-discount-3x",
                                           "row-discount-rtl", "row-discount-large-text",
                                           "row-plain-es", "row-plain-dark-3x", "sheet-discount",
                                           "sheet-discount-dark-3x", "sheet-plain-es",
                                           "sheet-discount-es-dark", "sheet-discount-rtl",
                                           "sheet-discount-large-text"),
                         testing::pictureTestName);

}  // namespace
}  // namespace quorix
