#include "qt/QtImages.h"

#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

#include "platform/graphics/AssetCatalog.h"
#include "qt/ApplicationLifetime.h"
#include "qt/QtColor.h"

namespace quorix::qt {
namespace {

constexpr std::size_t maximumEntries = 64;
constexpr std::size_t maximumBytes = 8 * 1024 * 1024;

}  // namespace

QtImages& QtImages::shared() { return applicationLifetime<QtImages>(); }

QImage QtImages::picture(const Request& request) {
  const auto known = std::ranges::find(entries_, request, &Entry::request);
  if (known != entries_.end()) {
    entries_.splice(entries_.begin(), entries_, known);
    return known->picture;
  }
  entries_.push_front({request, render(request)});
  bytes_ += static_cast<std::size_t>(entries_.front().picture.sizeInBytes());
  const QImage picture = entries_.front().picture;
  trim();
  return picture;
}

void QtImages::trim() {
  while (!entries_.empty() && (entries_.size() > maximumEntries || bytes_ > maximumBytes)) {
    bytes_ -= static_cast<std::size_t>(entries_.back().picture.sizeInBytes());
    entries_.pop_back();
  }
}

QImage QtImages::render(const Request& request) {
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

}  // namespace quorix::qt
