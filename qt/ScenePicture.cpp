#include "qt/ScenePicture.h"

#include <QPainter>
#include <cmath>

#include "qt/ScenePainter.h"

namespace quorix::qt {

QImage scenePicture(const render::Scene& scene, double scale) {
  // A size that is whole but for a rounding error asks for no further row of pixels.
  constexpr double tolerance = 1e-3;
  const QSize pixels(static_cast<int>(std::ceil(scene.size.width * scale - tolerance)),
                     static_cast<int>(std::ceil(scene.size.height * scale - tolerance)));
  if (pixels.isEmpty()) return {};
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter painter(&image);
    painter.scale(scale, scale);
    ScenePainter(painter).paint(scene);
  }
  image.setDevicePixelRatio(scale);
  return image;
}

}  // namespace quorix::qt
