#include "qt/ScenePainter.h"

#include <gtest/gtest.h>

#include <QImage>

#include "QuorixWidgets/localization/ResourceBundle.h"
#include "qt/Picture.h"
#include "tests/qt/Pixels.h"
#include "tests/qt/Texts.h"

namespace quorix::qt {
namespace {

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
