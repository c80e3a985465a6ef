#include "qt/Picture.h"

#include <gtest/gtest.h>

#include <limits>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/StillScene.h"
#include "qt/painting/ScenePainter.h"
#include "tests/qt/FeeRow.h"

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

TEST(Picture, IsNullForAnImpossibleSize) {
  const View line = Text::verbatim("x");
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double side : {0.0, -5.0, 1e6, layout::infinity, nan}) {
    EXPECT_TRUE(pictureOf(line, side, 50, 1).isNull()) << side;
    EXPECT_TRUE(pictureOf(line, 50, side, 1).isNull()) << side;
    EXPECT_TRUE(pictureOf(line, 50, 50, side).isNull()) << side;
  }
  EXPECT_TRUE(pictureOf(View(), 100, std::nullopt, 1).isNull());
}

TEST(StillScene, ShowsTheSheetsThatASheetPresents) {
  PictureOptions options;
  options.sheet = true;
  const View top = testing::Opener{Text::verbatim("Top"), swiftui::State<bool>{true}};
  const StillScene still = stillScene(testing::Opener{top}, options);
  ASSERT_TRUE(still.sheet);
  std::string words;
  for (const auto& element : still.sheet->accessibility) words += element.label + " ";
  EXPECT_EQ(words, "More Top ");
}

TEST(ScenePainter, AMissingImageDrawsNothing) {
  render::Scene scene;
  scene.size = {200, 60};
  const QImage clear = paintPicture(scene, 1, {0, 0, 0, 0});
  scene.items = {render::ImageItem{{{10, 0}, {180, 60}}, "nowhere", libraryBundle(), {}},
                 render::ImageItem{{{0, 0}, {46, 0}}, "logo", libraryBundle(), {}}};
  EXPECT_EQ(paintPicture(scene, 1, {0, 0, 0, 0}), clear);
}

}  // namespace
}  // namespace quorix::qt
