#include "qt/painting/QtImages.h"

#include <QPainter>
#include <QSvgRenderer>

#include "platform/graphics/AssetCatalog.h"
#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

QImage drawn(const QtImages::Request& request) {
  const auto asset = graphics::imageSet(request.bundle, request.name);
  if (!asset || request.pixels.isEmpty()) return {};
  const std::string_view svg = asset->svg(request.appearance);
  QSvgRenderer renderer(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
  if (!renderer.isValid()) return {};

  QImage picture(request.pixels, QImage::Format_ARGB32_Premultiplied);
  if (picture.isNull()) return {};
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter, QRectF(picture.rect()));
  if (asset->isTemplate) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), toQColor(request.tint));
  }
  return picture;
}

}  // namespace

QtImages& QtImages::shared() { return applicationLifetime<QtImages>(); }

QImage QtImages::picture(const Request& request) {
  constexpr qsizetype bytesInPixel = 4;
  const QSize size = request.pixels;
  if (bytesInPixel * size.width() * size.height() > largestKept) return drawn(request);
  return pictures_.get(request, [&] { return drawn(request); });
}

}  // namespace quorix::qt
