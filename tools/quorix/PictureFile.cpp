#include "tools/quorix/PictureFile.h"

#include <cmath>

#include "qt/Picture.h"
#include "tools/quorix/OutputFile.h"

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
  return writePicture(image, path);
}

}  // namespace quorix::tool
