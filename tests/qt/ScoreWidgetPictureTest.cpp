#include <QPainter>
#include <QTest>
#include <memory>
#include <string>

#include "QuorixWidgets/localization/TovaFont.h"
#include "QuorixWidgets/score/ScoreWidgetView.h"
#include "tests/qt/MatchesPicture.h"
#include "tests/qt/NamedPicture.h"
#include "tests/qt/Pixels.h"
#include "tests/qt/Screens.h"

namespace quorix {
namespace {

swiftui::View row(const std::string& locale, const ScoreWidgetStyle& style, double score) {
  const TokenData token{score, "EUR", 499, 299};
  return ScoreWidgetView{std::make_shared<ScoreWidgetViewModel>("shop", token, locale, style),
                         LocalizationRepository::make(locale)};
}

class ScoreWidgetPicture : public testing::NamedPicture {};

TEST_P(ScoreWidgetPicture, LooksAsItDid) {
  const std::string locale = says("es") ? "es" : "en";
  // The library's own faces keep their size, so large text is shown in a host's.
  const ScoreWidgetStyle style =
      says("large") ? ScoreWidgetStyle{TovaFont::regular().name(), "TovaSansLatin-SemiBold"}
                    : ScoreWidgetStyle{std::nullopt, std::nullopt};
  expectLooksAsItDid(row(locale, style, says("discount") ? 0.82 : 0.05));
}

template <class>
struct WindowPicture : ::testing::Test {};
TYPED_TEST_SUITE(WindowPicture, testing::Screens, testing::ScreenName);

TYPED_TEST(WindowPicture, ShowsTheRowAsAStillDoes) {
  const auto requests = testing::offline();
  TypeParam screen;
  screen.add(row("en", {std::nullopt, std::nullopt}, 0.82), {0, 0, 343, 0});
  const QImage window = screen.grab();
  const QImage still(TEST_DATA "/pictures/row-discount.png");
  QImage expected(still.size(), QImage::Format_RGB32);
  expected.fill(window.pixel(350, 300));
  QPainter(&expected).drawImage(0, 0, still);
  EXPECT_EQ(testing::differing(window.copy(expected.rect()), expected, 24), QRect());
}

/// At the largest text size, scrolled on by a page.
TYPED_TEST(WindowPicture, ShowsAScrolledSheet) {
  const auto requests = testing::offline();
  TypeParam screen;
  auto* shown = screen.add(row("en", {TovaFont::regular().name(), "TovaSansLatin-SemiBold"}, 0.82),
                           {20, 20, 320, 0});
  shown->setTextSize(swiftui::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
  screen.settle();
  screen.clickAt({180, 30});
  screen.key(Qt::Key_PageDown);
  QTest::qWait(1400);  // the scroll indicator is gone
  EXPECT_TRUE(testing::matchesPicture(screen.grab(), "sheet-scrolled"));
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
