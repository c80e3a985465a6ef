#include <QPainter>

#include "QuorixWidgets/localization/TovaFont.h"
#include "qt/Picture.h"
#include "tests/core/Widgets.h"
#include "tests/qt/Pixels.h"
#include "tests/qt/Screens.h"

namespace quorix {
namespace {

swiftui::View row(const std::string& locale, const ScoreWidgetStyle& style, bool discount) {
  return ScoreWidgetView{testing::scoreModel(discount, locale, style),
                         LocalizationRepository::make(locale)};
}

/// A host's faces, for large text sizes: the library's own faces do not scale.
ScoreWidgetStyle hostsFaces() { return {TovaFont::regular().name(), "TovaSansLatin-SemiBold"}; }

/// The name of each picture's reference describes it: "sheet-discount-dark-3x".
class WidgetPicture : public ::testing::TestWithParam<const char*> {
 protected:
  static bool says(const std::string& word) {
    return ("-" + std::string(GetParam()) + "-").find("-" + word + "-") != std::string::npos;
  }

  static swiftui::View widget() {
    const std::string locale = says("de") ? "de" : says("ar") ? "ar" : says("es") ? "es" : "en";
    const auto [regular, bold] = says("large") ? hostsFaces() : testing::ownFaces;
    if (!says("info")) return row(locale, {regular, bold}, says("discount"));
    const auto name = says("named") ? std::optional<std::string>("Ann") : std::nullopt;
    const auto percentile = says("personal") ? std::optional(12.0) : std::nullopt;
    return InfoWidgetView{
        testing::infoModel(locale, {regular, bold, {}, says("border")}, percentile, name)};
  }
};

TEST_P(WidgetPicture, LooksAsItDid) {
  const auto requests = testing::offline();
  qt::PictureOptions options;
  options.width = 343;
  options.sheet = says("sheet");
  swiftui::Environment& environment = options.environment;
  environment.language = "en";
  if (says("dark")) environment.appearance = graphics::Appearance::dark;
  if (says("rtl") || says("ar")) environment.direction = layout::LayoutDirection::rightToLeft;
  if (says("large")) environment.textSize = swiftui::ContentSizeCategory::extraExtraExtraLarge;
  if (says("2x")) environment.scale = 2;
  if (says("3x")) environment.scale = 3;
  EXPECT_TRUE(testing::matchesPicture(qt::picture(widget(), options), GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Widgets, WidgetPicture,
                         ::testing::Values("row-discount", "row-discount-dark", "row-discount-3x",
                                           "row-discount-rtl", "row-discount-large-text",
                                           "row-plain-es", "row-plain-dark-3x", "sheet-discount",
                                           "sheet-discount-dark-3x", "sheet-plain-es",
                                           "sheet-discount-es-dark", "sheet-discount-rtl",
                                           "sheet-discount-large-text", "info", "info-dark-3x",
                                           "info-de-2x", "info-ar-2x", "info-border",
                                           "info-personal-2x", "info-border-large-text",
                                           "info-sheet", "info-sheet-named-rtl-dark"),
                         [](const auto& tested) {
                           std::string name = tested.param;
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

SCREENS_TEST_SUITE(WindowPicture);

/// CMake runs this suite at other scales too, with Qt Widgets.
SCREENS_TEST_SUITE(WindowPictureScale);

TYPED_TEST(WindowPictureScale, ShowsTheRowAsAStillDoes) {
  const auto requests = testing::offline();
  TypeParam screen;
  const swiftui::View view = row("en", testing::ownFaces, true);
  // At a scale of one and a half, an odd position is between two device pixels.
  const QRectF place(21, 41, 300, 30);
  screen.add(view, place);
  const QImage window = screen.grab();
  const double scale = window.devicePixelRatio();
  const auto gray = static_cast<std::uint8_t>(qGray(window.pixel(0, 0)));
  qt::PictureOptions options{300, 30, {}, false, {}};
  options.environment.scale = scale;
  // Qt draws letters differently on an opaque page than on a transparent one, such as Qt Quick's
  // pictures.
  if (std::is_same_v<TypeParam, testing::WidgetScreen>)
    options.background = graphics::RGBA{gray, gray, gray};
  const QImage still = qt::picture(view, options);
  QImage expected(still.size(), QImage::Format_RGB32);
  expected.setDevicePixelRatio(scale);
  expected.fill(qRgb(gray, gray, gray));
  QPainter(&expected).drawImage(0, 0, still);
  const QImage shown = window.copy({(place.topLeft() * scale).toPoint(), still.size()});
  EXPECT_EQ(testing::differing(shown, expected, 2), QRect());
}

/// The largest text size, scrolled by one page.
TYPED_TEST(WindowPicture, ShowsAScrolledSheet) {
  const auto requests = testing::offline();
  TypeParam screen;
  auto* shown = screen.add(row("en", hostsFaces(), true), {20, 20, 320, 0});
  shown->setTextSize(swiftui::ContentSizeCategory::accessibilityExtraExtraExtraLarge);
  screen.settle();
  screen.clickAt({180, 30});
  screen.key(Qt::Key_PageDown);
  QTest::qWait(1400);  // until the scroll indicator is hidden
  EXPECT_TRUE(testing::matchesPicture(screen.grab(), "sheet-scrolled"));
}

}  // namespace
}  // namespace quorix
