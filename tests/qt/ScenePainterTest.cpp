#include "qt/ScenePainter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <optional>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/Picture.h"
#include "qt/QtColor.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

using graphics::Appearance;
using graphics::RGBA;
using layout::LayoutDirection;
using layout::Rect;
using testing::linkedText;
using testing::plainText;

constexpr RGBA clear{0, 0, 0, 0};
constexpr RGBA red{200, 0, 0, 255};

QImage painted(render::Item item, layout::Size size, double scale = 1,
               Appearance appearance = Appearance::light) {
  render::Scene scene;
  scene.size = size;
  scene.appearance = appearance;
  scene.items.push_back(std::move(item));
  return paintPicture(scene, scale, clear);
}

render::TextItem textAt(layout::Point origin, const text::AttributedText& text,
                        double width = layout::infinity) {
  layout::Size size = QtTextEngine::shared().measure(text, width).size;
  if (width != layout::infinity) size.width = width;
  return {{origin, size}, text};
}

/// The pixels that are not clear, or nothing.
std::optional<QRect> inked(const QImage& image) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).alpha() > 40) bounds |= QRect(x, y, 1, 1);
    }
  }
  return bounds.isNull() ? std::nullopt : std::optional(bounds);
}

/// The rows that are `color` through and through between `left` and `right`.
std::vector<int> solidRows(const QImage& image, int left, int right, QColor color) {
  std::vector<int> rows;
  for (int y = 0; y < image.height(); ++y) {
    bool solid = true;
    for (int x = left; x < right; ++x) solid = solid && image.pixelColor(x, y) == color;
    if (solid) rows.push_back(y);
  }
  return rows;
}

class AtScale : public ::testing::TestWithParam<double> {};

TEST_P(AtScale, UnderlinesInTheTextsColourBelowTheBaseline) {
  const double scale = GetParam();
  text::AttributedText text = plainText("Return HHH", 14);
  text.runs[0].color = red;
  text.runs[0].underline = true;
  const auto item = textAt({3, 2}, text);
  const QImage image = painted(item, {120, 30}, scale);
  const double baseline = QtTextEngine::shared().measure(text, 200).firstBaseline + 2;
  const int right = static_cast<int>((3 + item.frame.size.width) * scale) - 2;
  const auto rows = solidRows(image, static_cast<int>(3 * scale) + 1, right, toQColor(red));
  ASSERT_FALSE(rows.empty());
  EXPECT_EQ(rows.back() - rows.front() + 1, static_cast<int>(rows.size())) << "one stroke";
  EXPECT_LE(static_cast<double>(rows.size()), std::max(1.0, 0.12 * 14 * scale));
  EXPECT_GT(rows.front(), baseline * scale);
  EXPECT_LT(rows.back(), (baseline + 14 * 0.3) * scale);
}

TEST_P(AtScale, StrikesThroughTheMiddleOfTheDigits) {
  const double scale = GetParam();
  text::AttributedText text = plainText("4.99 00", 14);
  text.runs[0].color = red;
  text.runs[0].strikethrough = true;
  const auto digits = inked(painted(textAt({3, 2}, plainText("4.99 00", 14)), {80, 30}, scale));
  const QImage image = painted(textAt({3, 2}, text), {80, 30}, scale);
  ASSERT_TRUE(digits);
  const auto rows = solidRows(image, digits->left() + 1, digits->right() - 1, toQColor(red));
  ASSERT_FALSE(rows.empty());
  EXPECT_GT(rows.front(), digits->top() + digits->height() * 0.25);
  EXPECT_LT(rows.back(), digits->top() + digits->height() * 0.8);
}

TEST_P(AtScale, StrokesJustInsideTheFrame) {
  const double scale = GetParam();
  const QImage image = painted(render::StrokeItem{{{2, 2}, {20, 10}}, red, 2}, {24, 14}, scale);
  EXPECT_EQ(image.size(), QSize(static_cast<int>(24 * scale), static_cast<int>(14 * scale)));
  const auto at = [&](double x, double y) {
    return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale)).alpha();
  };
  for (const double x : {2.0, 3.4, 12.0, 21.4}) EXPECT_EQ(at(x, 2.5), 255) << x;
  for (const double y : {2.5, 7.0, 11.4}) EXPECT_EQ(at(21, y), 255) << y;
  EXPECT_EQ(at(12, 7), 0);
  EXPECT_EQ(at(1, 7), 0);
  EXPECT_EQ(at(22.5, 7), 0);
}

INSTANTIATE_TEST_SUITE_P(Scales, AtScale, ::testing::Values(1.0, 1.5, 2.0, 3.0));

TEST(ScenePainter, StandsOnTheBaselineThatWasMeasured) {
  const text::AttributedText text = plainText("HEH", 20);
  for (const double scale : {1.0, 2.0, 3.0}) {
    const auto ink = inked(painted(textAt({5, 4}, text), {80, 40}, scale));
    ASSERT_TRUE(ink);
    const double baseline = 4 + QtTextEngine::shared().measure(text, 200).firstBaseline;
    EXPECT_NEAR(ink->bottom() + 1, baseline * scale, 1);
    EXPECT_NEAR(ink->left(), 5 * scale, 3 * scale);
  }
}

TEST(ScenePainter, RightToLeftTextStartsAtTheRight) {
  const layout::Size size{200, 60};
  for (const std::string& words : {std::string("رسوم الإرجاع"), std::string("HIH"),
                                   std::string("رسوم الإرجاع الخاصة بك تعتمد على معدل الإرجاع")}) {
    const auto arabic = plainText(words, 14, LayoutDirection::rightToLeft);
    const auto ink = inked(painted(textAt({10, 0}, arabic, 180), size));
    ASSERT_TRUE(ink);
    EXPECT_NEAR(ink->right(), 190, 3) << words;
  }
  const auto latin = inked(painted(textAt({10, 0}, plainText("HIH"), 180), size));
  EXPECT_NEAR(latin->left(), 10, 3);
}

TEST(ScenePainter, OnlyTheUnderlinedRunIsUnderlined) {
  const text::AttributedText text = linkedText("Fees follow. ", "Read more");
  const double lead =
      QtTextEngine::shared().measure(plainText("Fees follow. ", 14), 999).size.width;
  const auto item = textAt({0, 0}, text);
  const QImage image = painted(item, {220, 40}, 2);
  const int start = static_cast<int>(lead * 2);
  const int end = static_cast<int>(item.frame.size.width * 2);
  const auto rows = solidRows(image, start + 2, end - 2, QColor(0, 0, 255));
  ASSERT_FALSE(rows.empty());
  for (int x = 0; x < start - 2; ++x) EXPECT_EQ(image.pixelColor(x, rows.front()).alpha(), 0) << x;
}

TEST(ScenePainter, RoundsTheUpperCorners) {
  const QImage image = painted(render::FillItem{{{0, 0}, {60, 40}}, red, 12}, {60, 40}, 2);
  EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(119, 0).alpha(), 0);
  EXPECT_EQ(image.pixelColor(24, 0), toQColor(red));
  EXPECT_EQ(image.pixelColor(0, 24), toQColor(red));
  EXPECT_EQ(image.pixelColor(0, 79), toQColor(red));
  EXPECT_EQ(image.pixelColor(119, 79), toQColor(red));
  int edge = 0;  // antialiased: some pixels lie between none and all
  for (int x = 0; x < 24; ++x) {
    const int alpha = image.pixelColor(x, 4).alpha();
    edge += alpha > 0 && alpha < 255;
  }
  EXPECT_GE(edge, 1);
}

render::ImageItem imageNamed(const char* name, RGBA tint = {}) {
  return {{{0, 0}, {46, 24}}, name, libraryBundle(), tint};
}

TEST(ScenePainter, TintsTemplateImagesAlone) {
  const QImage logo = painted(imageNamed("logo", red), {46, 24}, 2);
  ASSERT_TRUE(inked(logo));
  int opaque = 0;
  for (int y = 0; y < logo.height(); ++y) {
    for (int x = 0; x < logo.width(); ++x) {
      if (logo.pixelColor(x, y).alpha() < 255) continue;
      ++opaque;
      EXPECT_EQ(logo.pixelColor(x, y), toQColor(red));
    }
  }
  EXPECT_GT(opaque, 20);
  EXPECT_EQ(painted(imageNamed("close", red), {46, 24}), painted(imageNamed("close"), {46, 24}));
}

TEST(ScenePainter, DrawsTheImageOfItsAppearance) {
  const layout::Size size{46, 24};
  const QImage light = painted(imageNamed("close"), size);
  const QImage dark = painted(imageNamed("close"), size, 1, Appearance::dark);
  ASSERT_TRUE(inked(light));
  EXPECT_EQ(inked(light), inked(dark));
  EXPECT_NE(light, dark);
}

TEST(ScenePainter, AMissingImageDrawsNothing) {
  EXPECT_FALSE(inked(painted(imageNamed("nowhere"), {46, 24})));
  render::ImageItem flat = imageNamed("logo");
  flat.frame.size.height = 0;
  EXPECT_FALSE(inked(painted(flat, {46, 24})));
}

TEST(ScenePainter, LeavesThePainterWhereItWas) {
  QImage image(100, 50, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.translate(30, 10);
  const QTransform before = painter.transform();
  render::Scene scene;
  scene.items.push_back(textAt({0, 0}, plainText("HI")));
  ScenePainter(painter).paint(scene);
  EXPECT_EQ(painter.transform(), before);
  painter.end();
  EXPECT_GE(inked(image)->left(), 30);
  EXPECT_GE(inked(image)->top(), 10);
}

}  // namespace
}  // namespace quorix::qt
