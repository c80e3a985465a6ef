#include "qt/Picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "platform/swiftui/Elements.h"
#include "qt/StillScene.h"
#include "qt/painting/ScenePainter.h"
#include "tests/qt/Pixels.h"
#include "tests/qt/Texts.h"

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

constexpr layout::Rect frame{{10, 0}, {180, 60}};

/// The pixels of a picture of 200 by 60 points that are not clear.
QRect inked(render::Item item) {
  render::Scene scene;
  scene.size = {200, 60};
  scene.items.push_back(std::move(item));
  const QImage image = paintPicture(scene, 1, {0, 0, 0, 0});
  QImage clear = image;
  clear.fill(Qt::transparent);
  return testing::differing(image, clear, 40);
}

TEST(ScenePainter, RightToLeftTextStartsAtTheRight) {
  for (const char* words :
       {"رسوم الإرجاع", "HIH", "رسوم الإرجاع الخاصة بك تعتمد على معدل الإرجاع"}) {
    const auto text = testing::plainText(words, 14, layout::LayoutDirection::rightToLeft);
    EXPECT_NEAR(inked(render::TextItem{frame, text}).right(), 190, 3) << words;
  }
}

TEST(ScenePainter, AMissingImageDrawsNothing) {
  EXPECT_TRUE(inked(render::ImageItem{frame, "nowhere", libraryBundle(), {}}).isNull());
  EXPECT_TRUE(inked(render::ImageItem{{{0, 0}, {46, 0}}, "logo", libraryBundle(), {}}).isNull());
}

}  // namespace
}  // namespace quorix::qt
