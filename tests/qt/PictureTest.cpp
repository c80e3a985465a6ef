#include "qt/Picture.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/swiftui/Elements.h"
#include "qt/QtColor.h"

namespace quorix::qt {
namespace {

using swiftui::Font;
using swiftui::Text;
using swiftui::View;

View line(const char* text) {
  return View(Text::verbatim(text))
      .font(Font::custom(QuorixFont::regular().name(), Font::FixedSize{20}));
}

/// A text that opens a sheet.
struct Opener {
  static constexpr std::string_view typeName = "Opener";
  swiftui::State<bool> shown{false};
  auto states() const { return std::tie(shown); }
  View body() const {
    const auto flag = shown.binding();
    return line("Open").onTapGesture([flag] { flag.toggle(); }).sheet(flag, line("Sheet"));
  }
};

PictureOptions sized(double width, std::optional<double> height, double scale) {
  PictureOptions options;
  options.width = width;
  options.height = height;
  options.environment.scale = scale;
  return options;
}

TEST(Picture, HasTheScalesPixels) {
  EXPECT_EQ(picture(line("x"), sized(100, 50, 1)).size(), QSize(100, 50));
  EXPECT_EQ(picture(line("x"), sized(100, 50, 1.5)).size(), QSize(150, 75));
  const QImage tripled = picture(line("x"), sized(100, 50, 3));
  EXPECT_EQ(tripled.size(), QSize(300, 150));
  EXPECT_EQ(tripled.devicePixelRatio(), 3);
}

TEST(Picture, IsAsHighAsTheView) {
  const int one = picture(line("One"), sized(100, std::nullopt, 2)).height();
  const int two = picture(line("One\nTwo"), sized(100, std::nullopt, 2)).height();
  EXPECT_GT(one, 40);
  EXPECT_NEAR(two, 2 * one, 2);
}

TEST(Picture, AnImpossibleSizeIsNull) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double side : {0.0, -5.0, 1e6, layout::infinity, nan}) {
    EXPECT_TRUE(picture(line("x"), sized(side, 50, 1)).isNull()) << side;
    EXPECT_TRUE(picture(line("x"), sized(50, side, 1)).isNull()) << side;
    EXPECT_TRUE(picture(line("x"), sized(50, 50, side)).isNull()) << side;
  }
  EXPECT_TRUE(picture(View(), sized(100, std::nullopt, 1)).isNull());
}

TEST(Picture, StandsOnTheAppearancesBackground) {
  PictureOptions options = sized(60, 40, 1);
  EXPECT_EQ(picture(View(), options).pixelColor(0, 0), QColor(Qt::white));
  options.environment.appearance = graphics::Appearance::dark;
  EXPECT_EQ(picture(View(), options).pixelColor(0, 0), QColor(Qt::black));
  options.background = graphics::RGBA{0, 0, 0, 0};
  EXPECT_EQ(picture(View(), options).pixelColor(0, 0).alpha(), 0);
}

TEST(Picture, OpensTheSheetOverADimmedWindow) {
  PictureOptions options = sized(200, 400, 1);
  options.sheet = true;
  const QImage open = picture(Opener{}, options);
  ASSERT_EQ(open.size(), QSize(200, 400));
  EXPECT_LT(open.pixelColor(100, 5).lightness(), 200) << "dimmed";
  EXPECT_EQ(open.pixelColor(5, 395), QColor(Qt::white)) << "the panel";
  EXPECT_EQ(open, picture(Opener{}, options)) << "the same each time";

  const QImage closed = picture(line("No sheet"), options);
  EXPECT_EQ(closed.pixelColor(100, 5), QColor(Qt::white));
}

}  // namespace
}  // namespace quorix::qt
