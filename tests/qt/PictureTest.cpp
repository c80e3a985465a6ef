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
  image.setDevicePixelRatio(1);
  QPainter painter(&image);
  ScenePainter(painter, scale).paint(scene);
  painter.end();
  image.setDevicePixelRatio(scale);
  return image;
}

TEST(TextPictures, LookAsTheTextDrawnAnew) {
  const graphics::RGBA light{252, 250, 248, 255}, dark{28, 28, 30, 255};
  text::AttributedText words = linkedText("Your fee follows your returns. ", "Read more, jÂÇ");
  words.runs.front().color = {60, 60, 67, 153};
  const text::AttributedText link = linkedText("", "Read more, jÂÇ");
  text::AttributedText struck = plainText("€1,234.00");
  struck.runs.front().strikethrough = true;
  struck.runs.front().color = {107, 107, 112, 128};
  const auto arabic = plainText("رسوم الإرجاع", 14, layout::LayoutDirection::rightToLeft);
  const auto shaped = [](const text::AttributedText& text, double width = layout::infinity,
                         layout::Point origin = {30, 30}) {
    return sceneWith(text, width, origin);
  };
  const render::Scene wrapped = shaped(words, 90), marked = shaped(plainText("Å̂̂̂ȷ̣̣̣", 20));
  const auto after = [](render::Scene scene, std::vector<render::Item> items) {
    scene.items.insert(scene.items.begin(), items.begin(), items.end());
    return scene;
  };
  const auto ground = [](graphics::RGBA color) {
    return render::FillItem{{{}, {400, 400}}, color};
  };
  const std::pair<const char*, render::Scene> rows[] = {
      {"struck through and translucent", shaped(struck)},
      {"two runs, wrapped", wrapped},
      {"from the right", shaped(arabic, 120)},
      {"ink outside of its lines", marked},
      {"nothing to see", shaped(plainText("  "))},
      {"over another on nothing",
       after(shaped(link, layout::infinity, {31, 33}), {shaped(words).items.front()})},
      {"partly outside of the picture", shaped(words, layout::infinity, {90, -5})},
      {"clipped", after(wrapped, {render::ClipItem{{{40, 35}, {50, 20}}}})},
      {"underlined", after(shaped(link), {ground(light)})},
      {"two runs, wrapped, dark", after(wrapped, {ground(dark)})},
      {"within a round stroke",
       after(wrapped, {ground(light), render::StrokeItem{{{20, 20}, {110, 60}}, dark, 1, 6}})},
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

/// A painter that turns or shears moves nothing to device pixels, and fills no more than it should.
TEST(Picture, LiesAlongAPaintersAxes) {
  const render::Scene scene{{60, 40}, {}, {render::FillItem{{{10, 10}, {40, 20}}, {}}}, {}, {}};
  for (const QTransform& turned : {QTransform().rotate(30), QTransform().rotate(90),
                                   QTransform().shear(0.5, 0), QTransform().scale(1, 2)}) {
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(100, 50);
    painter.setTransform(turned, true);
    paintAsPicture(painter, scene);
    for (const QPointF inside :
         {QPointF(11, 11), QPointF(49, 11), QPointF(11, 29), QPointF(49, 29)}) {
      const QPointF outside = inside + (inside - QPointF(30, 20)) * 0.3;
      EXPECT_EQ(image.pixel(painter.transform().map(inside).toPoint()), 0xFF000000);
      EXPECT_EQ(image.pixel(painter.transform().map(outside).toPoint()), 0xFFFFFFFF);
    }
  }
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
