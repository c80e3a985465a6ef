#include "qt/TextPictures.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "qt/Picture.h"
#include "qt/QtTextEngine.h"
#include "qt/ScenePainter.h"
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

/// `scene` painted without any pictures of texts.
QImage drawnAnew(const render::Scene& scene, double scale) {
  QImage image = paintPicture({scene.size, scene.appearance, {}, {}, {}}, scale, {0, 0, 0, 0});
  QPainter painter(&image);
  ScenePainter(painter).paint(scene);
  return image;
}

/// `scene`'s texts on `ground`, which starts at `corner`, and `over` painted after the first.
render::Scene grounded(render::Scene scene, layout::Point corner, graphics::RGBA ground,
                       std::optional<render::Item> over = std::nullopt) {
  scene.items.insert(scene.items.begin(), render::FillItem{{corner, scene.size}, ground});
  if (over) {
    const render::Item text = scene.items.back();
    scene.items.push_back(*over);
    scene.items.push_back(text);
  }
  return scene;
}

TEST(TextPictures, OnAGroundLookAsTheTextDrawnAnew) {
  const graphics::RGBA light{252, 250, 248, 255}, dark{28, 28, 30, 255}, glass{250, 90, 0, 128};
  text::AttributedText words = linkedText("Your fee follows your returns. ", "Read more, jÂÇ");
  words.runs.front().color = {60, 60, 67, 153};
  const text::AttributedText link = linkedText("", "Read more, jÂÇ");
  const render::FillItem half{{{0, 0}, {55, 40}}, light};
  const struct {
    const char* name;
    render::Scene scene;
  } rows[] = {
      {"underlined", grounded(sceneWith(link, layout::infinity, {30, 30}), {}, light)},
      {"two runs, wrapped, light", grounded(sceneWith(words, 90, {30, 30}), {}, light)},
      {"two runs, wrapped, dark", grounded(sceneWith(words, 90, {30, 30}), {}, dark)},
      {"beside its ground", grounded(sceneWith(words, 90, {30, 30}), {150, 0}, light)},
      {"partly on its ground", grounded(sceneWith(words, 90, {30, 30}), {50, 40}, light)},
      {"ink over the ground's edge",
       grounded(sceneWith(plainText("Å̂̂̂ȷ̣̣̣", 20), layout::infinity, {30, 30}), {30, 30}, dark)},
      {"on glass", grounded(sceneWith(words, 90, {30, 30}), {}, glass)},
      {"half covered, and once more", grounded(sceneWith(words, 90, {30, 30}), {}, dark, half)},
      {"over a text", grounded(sceneWith(words, 90, {30, 30}), {}, light,
                               sceneWith(link, layout::infinity, {31, 33}).items.front())},
      {"within a stroke", grounded(sceneWith(words, 90, {30, 30}), {}, light,
                                   render::StrokeItem{{{20, 20}, {110, 60}}, dark, 1})},
  };
  for (const auto& row : rows) {
    for (const double scale : {1.0, 1.5, 3.0}) {
      SCOPED_TRACE(row.name + std::string(" at ") + std::to_string(scale));
      QtTextEngine::shared().pictures().clear();
      const QImage drawn = drawnAnew(row.scene, scale);
      for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(paintPicture(row.scene, scale, {0, 0, 0, 0}), drawn) << "time " << time;
      }
    }
  }
}

TEST(TextPictures, TellGroundsApart) {
  const render::Scene text = sceneWith(plainText("Fee"), layout::infinity, {10, 10});
  const render::Scene white = grounded(text, {}, {255, 255, 255, 255});
  const render::Scene grey = grounded(text, {}, {128, 128, 128, 255});
  const QImage onNothing = paintPicture(text, 1, {0, 0, 0, 0});
  for (int time = 0; time < 3; ++time) {
    for (const render::Scene& scene : {white, grey}) {
      EXPECT_EQ(paintPicture(scene, 1, {0, 0, 0, 0}), drawnAnew(scene, 1));
    }
    EXPECT_EQ(paintPicture(text, 1, {0, 0, 0, 0}), onNothing);
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
    return pictures.find(item, 3, {0, 0, 0, 0}, [&]() -> TextPictures::Picture {
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
