// The demo shop without a display.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <map>
#include <string>

namespace quorix::examples {
namespace {

bool isBlank(const QImage& image) {
  QImage plain(image.size(), image.format());
  plain.setDevicePixelRatio(image.devicePixelRatio());
  plain.fill(image.pixelColor(0, 0));
  return image == plain;
}

/// The share of light pixels in an image.
double lightShare(const QImage& image) {
  int light = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) light += image.pixelColor(x, y).lightness() > 160;
  }
  return double(light) / (image.width() * image.height());
}

TEST(DemoPicturesTest, WithoutADisplayEverySceneIsAPictureOfItsOwn) {
  const QTemporaryDir folder;
  QProcess shop;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1String(name));
  }
  environment.insert("XDG_RUNTIME_DIR", folder.path());
  shop.setProcessEnvironment(environment);
  shop.setWorkingDirectory(folder.path());
  shop.start(SHOP_PROGRAM, QStringList());
  constexpr int patience = 120'000;  // milliseconds, for instrumented builds
  ASSERT_TRUE(shop.waitForFinished(patience));
  ASSERT_EQ(shop.exitCode(), 0) << shop.readAllStandardError().toStdString();
  const QString output = QString::fromUtf8(shop.readAllStandardOutput());
  EXPECT_TRUE(output.contains("no display")) << output.toStdString();

  const QDir out(folder.filePath("out"));
  const QStringList pictures = out.entryList({"*.png"}, QDir::Files, QDir::Name);
  for (const char* name : {"row-ar-rtl", "sheet-discount-en-light", "info-border-en-light",
                           "info-imperative-ja-light", "shop-bag-light", "shop-sheet-es-light",
                           "widgets-shop-light", "widgets-bag-light", "widgets-sheet-light"}) {
    EXPECT_TRUE(pictures.contains(QLatin1String(name) + ".png")) << name;
  }
  EXPECT_EQ(pictures.contains("shop-overlay-en-light.png"), bool(SHOP_HAS_WEB));
  EXPECT_EQ(pictures.contains("widgets-overlay-de-light.png"), bool(SHOP_HAS_WEB));
  // If a setting has no effect, two scenes look the same.
  std::map<QByteArray, std::string> seen;
  for (const QString& name : pictures) {
    const QImage image(out.filePath(name));
    ASSERT_FALSE(image.isNull()) << name.toStdString();
    EXPECT_FALSE(isBlank(image)) << name.toStdString();
    EXPECT_TRUE(output.contains("out/" + name)) << name.toStdString();
    if (name.contains("dark")) {
      EXPECT_LT(lightShare(image), 0.2) << name.toStdString();
    }
    const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    const auto [known, isNew] = seen.emplace(pixels, name.toStdString());
    EXPECT_TRUE(isNew) << name.toStdString() << " looks like " << known->second;
  }
}

}  // namespace
}  // namespace quorix::examples
