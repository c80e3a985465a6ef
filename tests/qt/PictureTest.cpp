#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/Picture.h"
#include "qt/StillScene.h"
#include "qt/painting/ScenePainter.h"
#include "qt/text/QtTextEngine.h"
#include "tests/qt/FeeRow.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

using swiftui::View;
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

/// Paints `scene` without the cache of text pictures.
QImage drawnAnew(const render::Scene& scene, double scale) {
  QImage image = paintPicture({scene.size, scene.appearance, {}, {}, {}}, scale, {0, 0, 0, 0});
  QPainter painter(&image);
  ScenePainter(painter).paint(scene);
  return image;
}

/// The texts of `scene` on a fill `ground` that starts at `corner`, with `over` painted after the
/// first text.
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

TEST(TextPictures, LookAsTheTextDrawnAnew) {
  const graphics::RGBA light{252, 250, 248, 255}, dark{28, 28, 30, 255}, glass{250, 90, 0, 128};
  text::AttributedText words = linkedText("Your fee follows your returns. ", "Read more, jÂÇ");
  words.runs.front().color = {60, 60, 67, 153};
  const text::AttributedText link = linkedText("", "Read more, jÂÇ");
  text::AttributedText struck = plainText("€1,234.00");
  struck.runs.front().strikethrough = true;
  struck.runs.front().color = {107, 107, 112, 128};
  text::AttributedText recolored = struck;
  recolored.runs.front().color = {200, 0, 0, 255};
  const auto figures = plainText("€ 1,234,567.89 £ 0.25 −98,765.43 % 6,071,829.30");
  text::AttributedText medium = figures;
  medium.runs[0].font.name = QuorixFont::medium().name();
  const auto arabic = plainText("رسوم الإرجاع", 14, layout::LayoutDirection::rightToLeft);
  const auto shaped = [](const text::AttributedText& text, double width = layout::infinity) {
    return sceneWith(text, width, {30, 30});
  };
  const render::Scene wrapped = shaped(words, 90), marked = shaped(plainText("Å̂̂̂ȷ̣̣̣", 20));
  render::Scene twice = shaped(words);
  twice.items.push_back(sceneWith(link, layout::infinity, {31, 33}).items.front());
  const render::FillItem half{{{0, 0}, {55, 40}}, light};
  const std::pair<const char*, render::Scene> rows[] = {
      {"struck through and translucent", shaped(struck)},
      {"in another color", shaped(recolored)},
      {"two runs, wrapped", wrapped},
      {"from the right", shaped(arabic, 120)},
      {"ink outside of its lines", marked},
      {"nothing to see", shaped(plainText("  "))},
      {"figures", shaped(figures)},
      {"figures in another face", shaped(medium)},
      {"over another on nothing", twice},
      {"partly outside of the picture", sceneWith(words, layout::infinity, {90, -5})},
      {"underlined", grounded(shaped(link), {}, light)},
      {"two runs, wrapped, light", grounded(wrapped, {}, light)},
      {"two runs, wrapped, dark", grounded(wrapped, {}, dark)},
      {"beside its ground", grounded(wrapped, {150, 0}, light)},
      {"partly on its ground", grounded(wrapped, {50, 40}, light)},
      {"ink over the ground's edge", grounded(marked, {30, 30}, dark)},
      {"on glass", grounded(wrapped, {}, glass)},
      {"half covered, and once more", grounded(wrapped, {}, dark, half)},
      {"over a text",
       grounded(wrapped, {}, light, sceneWith(link, layout::infinity, {31, 33}).items.front())},
      {"within a stroke",
       grounded(wrapped, {}, light, render::StrokeItem{{{20, 20}, {110, 60}}, dark, 1})},
      {"within a round stroke",
       grounded(wrapped, {}, light, render::StrokeItem{{{20, 20}, {110, 60}}, dark, 1, 6})},
  };
  for (const double scale : {1.0, 1.5, 3.0}) {
    QtTextEngine::shared().pictures().clear();
    // Paints all rows before repeating them, so that one could be taken for another: the second
    // painting makes a text's picture, the third copies it.
    for (int time = 0; time < 3; ++time) {
      for (const auto& [name, scene] : rows) {
        EXPECT_EQ(paintPicture(scene, scale, {0, 0, 0, 0}), drawnAnew(scene, scale))
            << name << " at " << scale << ", time " << time;
      }
    }
  }
}

QImage pictureOf(const View& view, double width, std::optional<double> height, double scale) {
  PictureOptions options;
  options.width = width;
  options.height = height;
  options.environment.scale = scale;
  return picture(view, options);
}

TEST(Picture, IsNullForAnImpossibleSize) {
  const View line = swiftui::Text::verbatim("x");
  const double nan = std::nan("");
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
  const View top = testing::Opener{swiftui::Text::verbatim("Top"), swiftui::State<bool>{true}};
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
