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

TEST(ScenePainter, RightToLeftTextStartsAtTheRight) {
  for (const char* words :
       {"رسوم الإرجاع", "HIH", "رسوم الإرجاع الخاصة بك تعتمد على معدل الإرجاع"}) {
    const auto text = plainText(words, 14, LayoutDirection::rightToLeft);
    const auto ink = inked(painted(textAt({10, 0}, text, 180), {200, 60}));
    ASSERT_TRUE(ink);
    EXPECT_NEAR(ink->right(), 190, 3) << words;
  }
}

render::ImageItem imageNamed(const char* name, RGBA tint = {}) {
  return {{{0, 0}, {46, 24}}, name, libraryBundle(), tint};
}

TEST(ScenePainter, AMissingImageDrawsNothing) {
  EXPECT_FALSE(inked(painted(imageNamed("nowhere"), {46, 24})));
  render::ImageItem flat = imageNamed("logo");
  flat.frame.size.height = 0;
  EXPECT_FALSE(inked(painted(flat, {46, 24})));
}

}  // namespace
}  // namespace quorix::qt
