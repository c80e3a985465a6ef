// The demo shop as somebody without a display runs it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <map>
#include <string>

namespace quorix::examples {
namespace {

const QStringList promised = {
    "row-ar-rtl.png",
    "row-discount-de-light.png",
    "row-discount-en-dark.png",
    "row-discount-en-light.png",
    "row-discount-es-light.png",
    "row-fr-falls-back-to-english.png",
    "row-kronor-en-light.png",
    "row-no-discount-en-light.png",
    "row-yen-en-light.png",
    "sheet-ar-rtl.png",
    "sheet-discount-de-light.png",
    "sheet-discount-en-dark.png",
    "sheet-discount-en-light.png",
    "sheet-no-discount-es-dark.png",
    "sheet-no-discount-es-light.png",
    "shop-ar-rtl.png",
    "shop-broken-token.png",
    "shop-dark.png",
    "shop-larger-text.png",
    "shop-light.png",
    "shop-no-discount-es-light.png",
    "shop-sheet-ar-rtl.png",
    "shop-sheet-dark.png",
    "shop-sheet-es-light.png",
    "shop-sheet-light.png",
};

struct Outcome {
  int exitCode;
  QString output;
  QString errors;
};

Outcome runShop(const QStringList& arguments, const QString& folder) {
  QProcess shop;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    environment.remove(QLatin1String(name));
  }
  environment.insert("XDG_RUNTIME_DIR", folder);
  shop.setProcessEnvironment(environment);
  shop.setWorkingDirectory(folder);
  shop.start(SHOP_PROGRAM, arguments);
  constexpr int patience = 120'000;  // milliseconds, for instrumented builds
  const bool ended = shop.waitForFinished(patience) && shop.exitStatus() == QProcess::NormalExit;
  return {ended ? shop.exitCode() : -1, QString::fromUtf8(shop.readAllStandardOutput()),
          QString::fromUtf8(shop.readAllStandardError())};
}

bool isBlank(const QImage& image) {
  QImage plain(image.size(), image.format());
  plain.setDevicePixelRatio(image.devicePixelRatio());
  plain.fill(image.pixelColor(0, 0));
  return image == plain;
}

TEST(DemoPicturesTest, WithoutADisplayEverySceneIsAPictureOfItsOwn) {
  const QTemporaryDir folder;
  const Outcome outcome = runShop({}, folder.path());
  ASSERT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();

  const QStringList lines = outcome.output.split('\n', Qt::SkipEmptyParts);
  ASSERT_FALSE(lines.isEmpty());
  EXPECT_TRUE(lines.first().contains("no display")) << lines.first().toStdString();
  EXPECT_EQ(lines.size(), promised.size() + 1);

  const QDir out(folder.filePath("out"));
  EXPECT_EQ(out.entryList({"*"}, QDir::Files, QDir::Name), promised);
  // A switch that does not take shows up as two scenes that look the same.
  std::map<QByteArray, std::string> seen;
  for (const QString& name : promised) {
    const QImage image(out.filePath(name));
    ASSERT_FALSE(image.isNull()) << name.toStdString();
    EXPECT_FALSE(isBlank(image)) << name.toStdString();
    EXPECT_TRUE(outcome.output.contains("out/" + name)) << name.toStdString();
    const QByteArray pixels(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    const auto [known, isNew] = seen.emplace(pixels, name.toStdString());
    EXPECT_TRUE(isNew) << name.toStdString() << " looks like " << known->second;
  }
}

TEST(DemoPicturesTest, MisuseIsToldInOneLine) {
  const QTemporaryDir folder;
  const QString occupied = folder.filePath("occupied");
  QFile(occupied).open(QIODevice::WriteOnly);
  const struct {
    QStringList arguments;
    int exitCode;
  } cases[] = {
      {{"--picture"}, 2}, {{"shop.png"}, 2},         {{"--pictures", "--out"}, 2},
      {{"--out", ""}, 2}, {{"--help", "--loud"}, 2}, {{"--out", occupied}, 1},
  };
  for (const auto& [arguments, exitCode] : cases) {
    const Outcome outcome = runShop(arguments, folder.path());
    const std::string shown = arguments.join(' ').toStdString();
    EXPECT_EQ(outcome.exitCode, exitCode) << shown;
    EXPECT_EQ(outcome.errors.count('\n'), 1) << shown << ": " << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.output.isEmpty()) << shown;
  }
}

}  // namespace
}  // namespace quorix::examples
