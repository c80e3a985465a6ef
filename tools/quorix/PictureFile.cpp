#include "tools/quorix/PictureFile.h"

#include <QImageWriter>
#include <QSaveFile>
#include <cmath>

#include "qt/Picture.h"

namespace quorix::tool {
namespace {

// A hundred million pixels take 400 megabytes while they are painted.
constexpr double mostPixels = 1e8;

std::string pixels(double width, double height) {
  const auto whole = [](double length) {
    return std::to_string(static_cast<long long>(std::ceil(length)));
  };
  return whole(width) + " x " + whole(height) + " pixels";
}

Failure cannotWrite(const std::string& path, const QString& reason) {
  return Failure::refused("can't write " + path + ": " + reason.toStdString());
}

}  // namespace

std::optional<Failure> writePicture(const render::Scene& scene, const qt::PictureOptions& options,
                                    const std::string& path) {
  const double width = scene.size.width * options.environment.scale;
  const double height = scene.size.height * options.environment.scale;
  const bool tooLarge = width * height > mostPixels;
  const QImage image = tooLarge ? QImage() : qt::paintPicture(scene, options);
  if (image.isNull()) {
    return Failure::refused("a picture of " + pixels(width, height) + " is too large");
  }
  QSaveFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return cannotWrite(path, file.errorString());
  QImageWriter writer(&file, "png");
  if (!writer.write(image)) return cannotWrite(path, writer.errorString());
  if (!file.commit()) return cannotWrite(path, file.errorString());
  return std::nullopt;
}

}  // namespace quorix::tool
