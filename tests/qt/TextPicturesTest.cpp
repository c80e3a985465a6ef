#include "qt/TextPictures.h"

#include <gtest/gtest.h>

#include <QImage>

#include "qt/Picture.h"
#include "qt/QtTextEngine.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

using layout::LayoutDirection;
using testing::linkedText;
using testing::plainText;

render::Scene sceneWith(const text::AttributedText& text, double width, layout::Point origin) {
  layout::Size size = QtTextEngine::shared().measure(text, width).size;
  if (width != layout::infinity) size.width = width;
  render::Scene scene;
  scene.size = {size.width + 60, size.height + 60};
  scene.items.push_back(render::TextItem{{origin, size}, text});
  return scene;
}

TEST(TextPictures, LookAsTheTextDrawnAnew) {
  text::AttributedText struck = plainText("€1,234.00");
  struck.runs.front().strikethrough = true;
  struck.runs.front().color = {107, 107, 112, 128};
  const struct {
    const char* name;
    text::AttributedText text;
    double width;
  } rows[] = {
      {"struck through and translucent", struck, layout::infinity},
      {"two runs, wrapped", linkedText("Your fee follows your returns. ", "Read more, jÂÇ"), 90},
      {"from the right", plainText("رسوم الإرجاع", 14, LayoutDirection::rightToLeft), 120},
      {"ink outside of its lines", plainText("Å̂̂̂ȷ̣̣̣", 20), layout::infinity},
      {"nothing to see", plainText("  "), layout::infinity},
  };
  for (const auto& row : rows) {
    for (const double scale : {1.0, 1.5, 3.0}) {
      SCOPED_TRACE(row.name + std::string(" at ") + std::to_string(scale));
      const render::Scene scene = sceneWith(row.text, row.width, {30, 30});
      QtTextEngine::shared().pictures().clear();
      const QImage drawn = paintPicture(scene, scale, {0, 0, 0, 0});
      // The second painting makes the text's picture, the third copies it.
      EXPECT_EQ(paintPicture(scene, scale, {0, 0, 0, 0}), drawn);
      EXPECT_EQ(paintPicture(scene, scale, {0, 0, 0, 0}), drawn);
    }
  }
}

TEST(TextPictures, TellTextsOfOneShapeApart) {
  const render::Scene black = sceneWith(plainText("Fee"), layout::infinity, {0, 0});
  render::Scene red = black;
  std::get<render::TextItem>(red.items.front()).text.runs.front().color = {200, 0, 0, 255};
  for (int time = 0; time < 3; ++time) {
    EXPECT_NE(paintPicture(black, 1, {0, 0, 0, 0}), paintPicture(red, 1, {0, 0, 0, 0}));
  }
}

/// The most that is kept is not passed on: texts without end neither grow it nor get each other's
/// pictures.
TEST(TextPictures, KeepTheLatestOnly) {
  TextPictures pictures;
  int made = 0;
  const auto find = [&](int number) {
    const render::TextItem item{{{}, {100, 20}}, plainText(std::to_string(number))};
    return pictures.find(item, 3, [&]() -> TextPictures::Picture {
      ++made;
      QImage image(300, 100, QImage::Format_ARGB32_Premultiplied);
      image.fill(QColor(number % 256, 0, 0));
      return {image, {}};
    });
  };
  for (int number = 0; number < 200; ++number) {
    EXPECT_EQ(find(number), nullptr);
    const auto* picture = find(number);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->image.pixelColor(0, 0), QColor(number % 256, 0, 0));
  }
  EXPECT_EQ(made, 200);
  EXPECT_NE(find(199), nullptr);
  EXPECT_EQ(find(0), nullptr);
}

}  // namespace
}  // namespace quorix::qt
