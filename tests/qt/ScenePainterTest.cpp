#include "qt/ScenePainter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <optional>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/Picture.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

using graphics::RGBA;
using layout::LayoutDirection;
using testing::plainText;

constexpr RGBA red{200, 0, 0, 255};

QImage painted(render::Item item, layout::Size size, double scale = 1) {
  render::Scene scene;
  scene.size = size;
  scene.items.push_back(std::move(item));
  return paintPicture(scene, scale, RGBA{0, 0, 0, 0});
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
  for (const char* words :
       {"رسوم الإرجاع", "HIH", "رسوم الإرجاع الخاصة بك تعتمد على معدل الإرجاع"}) {
    const auto text = plainText(words, 14, LayoutDirection::rightToLeft);
    const auto ink = inked(painted(textAt({10, 0}, text, 180), {200, 60}));
    ASSERT_TRUE(ink);
    EXPECT_NEAR(ink->right(), 190, 3) << words;
  }
}

TEST(ScenePainter, StrokesJustInsideTheFrame) {
  for (const double scale : {1.0, 1.5, 3.0}) {
    const QImage image = painted(render::StrokeItem{{{2, 2}, {20, 10}}, red, 2}, {24, 14}, scale);
    const auto at = [&](double x, double y) {
      return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale)).alpha();
    };
    for (const double x : {2.0, 3.4, 12.0, 21.4}) EXPECT_EQ(at(x, 2.5), 255) << x;
    for (const double y : {2.5, 7.0, 11.4}) EXPECT_EQ(at(21, y), 255) << y;
    for (const double x : {1.0, 12.0, 22.5}) EXPECT_EQ(at(x, 7), 0) << x;
  }
}

render::ImageItem imageNamed(const char* name, RGBA tint = {}) {
  return {{{0, 0}, {46, 24}}, name, libraryBundle(), tint};
}

TEST(ScenePainter, TintsTemplateImagesAlone) {
  EXPECT_NE(painted(imageNamed("logo", red), {46, 24}), painted(imageNamed("logo"), {46, 24}));
  EXPECT_EQ(painted(imageNamed("close", red), {46, 24}), painted(imageNamed("close"), {46, 24}));
}

TEST(ScenePainter, AMissingImageDrawsNothing) {
  EXPECT_FALSE(inked(painted(imageNamed("nowhere"), {46, 24})));
  render::ImageItem flat = imageNamed("logo");
  flat.frame.size.height = 0;
  EXPECT_FALSE(inked(painted(flat, {46, 24})));
}

}  // namespace
}  // namespace quorix::qt
