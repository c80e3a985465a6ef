#include "qt/Picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "QuorixWidgets/localization/QuorixFont.h"
#include "platform/swiftui/Elements.h"

namespace quorix::qt {
namespace {

using swiftui::Font;
using swiftui::Text;
using swiftui::View;

View line(const char* text) {
  return View(Text::verbatim(text))
      .font(Font::custom(QuorixFont::regular().name(), Font::FixedSize{20}));
}

PictureOptions sized(double width, std::optional<double> height, double scale) {
  PictureOptions options;
  options.width = width;
  options.height = height;
  options.environment.scale = scale;
  return options;
}

TEST(Picture, HasTheScalesPixels) {
  EXPECT_EQ(picture(line("x"), sized(100, 50, 1.5)).size(), QSize(150, 75));
  const QImage tripled = picture(line("x"), sized(100, 50, 3));
  EXPECT_EQ(tripled.size(), QSize(300, 150));
  EXPECT_EQ(tripled.devicePixelRatio(), 3);
  const int one = picture(line("One"), sized(100, std::nullopt, 2)).height();
  EXPECT_NEAR(picture(line("One\nTwo"), sized(100, std::nullopt, 2)).height(), 2 * one, 2);
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

}  // namespace
}  // namespace quorix::qt
