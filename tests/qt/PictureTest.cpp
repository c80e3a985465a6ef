#include "qt/Picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/swiftui/Elements.h"
#include "qt/StillScene.h"

namespace quorix::qt {
namespace {

using swiftui::Text;
using swiftui::View;

QImage pictureOf(const View& view, double width, std::optional<double> height, double scale) {
  PictureOptions options;
  options.width = width;
  options.height = height;
  options.environment.scale = scale;
  return picture(view, options);
}

TEST(Picture, HasTheScalesPixelsAndIsNullForAnImpossibleSize) {
  const View line = Text::verbatim("x");
  const QImage tripled = pictureOf(line, 100, 50, 3);
  EXPECT_EQ(tripled.size(), QSize(300, 150));
  EXPECT_EQ(tripled.devicePixelRatio(), 3);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double side : {0.0, -5.0, 1e6, layout::infinity, nan}) {
    EXPECT_TRUE(pictureOf(line, side, 50, 1).isNull()) << side;
    EXPECT_TRUE(pictureOf(line, 50, side, 1).isNull()) << side;
    EXPECT_TRUE(pictureOf(line, 50, 50, side).isNull()) << side;
  }
  EXPECT_TRUE(pictureOf(View(), 100, std::nullopt, 1).isNull());
}

/// Shows a sheet of `content` from the start.
struct Presenting {
  static constexpr std::string_view typeName = "Presenting";
  View content;
  swiftui::State<bool> shown{true};
  auto states() const { return std::tie(shown); }
  View body() const { return View(Text::verbatim("Below")).sheet(shown.binding(), content); }
};

TEST(StillScene, ShowsTheSheetsThatASheetPresents) {
  PictureOptions options;
  options.sheet = true;
  const auto opener = [](View content) {
    return View(Presenting{std::move(content)}).onTapGesture([] {});
  };
  const StillScene still = stillScene(opener(Presenting{Text::verbatim("Top")}), options);
  ASSERT_TRUE(still.sheet);
  std::string words;
  for (const auto& element : still.sheet->accessibility) words += element.label + " ";
  EXPECT_EQ(words, "Below Top ");
}

}  // namespace
}  // namespace quorix::qt
