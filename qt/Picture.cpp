#include "qt/Picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/render/Scene.h"
#include "qt/Conversions.h"
#include "qt/StillScene.h"
#include "qt/painting/ScenePainter.h"

namespace quorix::qt {
namespace {

// What a QPainter can address on one axis.
constexpr double largestSide = 32767;

}  // namespace

QImage paintPicture(const render::Scene& scene, double scale, graphics::RGBA background) {
  const double width = std::ceil(scene.size.width * scale);
  const double height = std::ceil(scene.size.height * scale);
  const bool drawable = width >= 1 && height >= 1 && width <= largestSide && height <= largestSide;
  if (!drawable) return {};
  QImage image(static_cast<int>(width), static_cast<int>(height),
               QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return {};
  image.fill(Qt::transparent);
  ScenePainter(image, scale).paint(scene);
  image.setDevicePixelRatio(scale);
  if (background.alpha == 0) return image;
  // Paints the background last, under the rest: on an opaque image Qt blends the letters of some
  // faces otherwise, and four times as slowly. On a surface, which is transparent, it does not, and
  // a picture is to look the same.
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
  painter.fillRect(QRectF({}, image.deviceIndependentSize()), toQColor(background));
  return image;
}

void paintAsPicture(QPainter& painter, const render::Scene& scene) {
  const QTransform toDevice = painter.deviceTransform();
  const double scale = std::sqrt(std::abs(toDevice.determinant()));
  if (scale <= 0) return;
  const bool upright =
      toDevice.type() <= QTransform::TxScale && toDevice.m11() == scale && toDevice.m22() == scale;
  // Only a little of a larger picture would be in sight.
  const bool small = std::max(scene.size.width, scene.size.height) * scale <= render::mostPixels;
  QImage image = upright && small ? paintPicture(scene, scale, {0, 0, 0, 0}) : QImage();
  image.setDevicePixelRatio(1);
  painter.save();
  painter.scale(1 / scale, 1 / scale);
  const QPointF corner = painter.deviceTransform().map(QPointF());
  if (upright) painter.translate(corner.toPoint() - corner);
  if (image.isNull()) {
    ScenePainter(painter, scale).paint(scene);
  } else {
    painter.drawImage(QPointF(), image);
  }
  painter.restore();
}

QImage paintPicture(const render::Scene& scene, const PictureOptions& options) {
  return paintPicture(scene, options.environment.scale, options.ground());
}

QImage picture(const swiftui::View& view, const PictureOptions& options) {
  return paintPicture(stillScene(view, options).whole(), options);
}

}  // namespace quorix::qt
