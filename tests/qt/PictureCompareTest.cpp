#include "tests/qt/PictureCompare.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quorix::testing {
namespace {

class PictureCompareTest : public ::testing::Test {
 protected:
  QTemporaryDir folder_;
  PictureCompare compare_{folder_.filePath("references"), folder_.filePath("output")};

  static QImage grey() {
    QImage image(40, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(120, 120, 120));
    return image;
  }

  void SetUp() override {
    if (qEnvironmentVariableIntValue("QUORIX_UPDATE_PICTURES") == 1) GTEST_SKIP();
    ASSERT_TRUE(QDir().mkpath(folder_.filePath("references")));
    ASSERT_TRUE(grey().save(folder_.filePath("references/grey.png")));
  }
};

TEST_F(PictureCompareTest, AcceptsShadesAndFewPixels) {
  QImage image = grey();
  EXPECT_TRUE(compare_.matches(image, "grey"));
  image.fill(QColor(130, 115, 120));
  image.setPixelColor(3, 3, Qt::black);
  EXPECT_TRUE(compare_.matches(image, "grey"));
  EXPECT_FALSE(QDir(folder_.filePath("output")).exists());
}

TEST_F(PictureCompareTest, ShowsWhereAPictureDiffers) {
  QImage image = grey();
  for (int x = 10; x < 20; ++x) image.setPixelColor(x, 5, Qt::white);
  const auto result = compare_.matches(image, "grey");
  ASSERT_FALSE(result);
  EXPECT_NE(std::string(result.message()).find("10 pixels differ"), std::string::npos);
  EXPECT_EQ(QImage(folder_.filePath("output/grey.actual.png")).size(), image.size());
  const QImage difference(folder_.filePath("output/grey.diff.png"));
  EXPECT_EQ(difference.pixelColor(10, 5), QColor(Qt::red));
  EXPECT_NE(difference.pixelColor(9, 5), QColor(Qt::red));
}

TEST_F(PictureCompareTest, RefusesAnotherSizeAndAMissingReference) {
  EXPECT_FALSE(compare_.matches(grey().scaled(41, 30), "grey"));
  EXPECT_FALSE(compare_.matches(grey(), "unknown"));
  EXPECT_TRUE(QFile::exists(folder_.filePath("output/unknown.actual.png")));
}

TEST_F(PictureCompareTest, WritesReferencesOnRequest) {
  QImage image = grey();
  image.fill(Qt::blue);
  qputenv("QUORIX_UPDATE_PICTURES", "1");
  EXPECT_TRUE(compare_.matches(image, "new"));
  qunsetenv("QUORIX_UPDATE_PICTURES");
  EXPECT_TRUE(compare_.matches(image, "new"));
  EXPECT_FALSE(compare_.matches(grey(), "new"));
}

}  // namespace
}  // namespace quorix::testing
