#include "qt/painting/ScenePainter.h"

#include <QPainterPath>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Cache.h"
#include "platform/graphics/AssetCatalog.h"
#include "qt/ApplicationLifetime.h"
#include "qt/Conversions.h"

namespace quorix::qt {
namespace {

/// What a picture of an image depends on.
struct ImageRequest {
  foundation::Bundle::Ref bundle;
  std::string name;
  QSize pixels;
  graphics::Appearance appearance;
  graphics::RGBA tint;  ///< of template images; others keep their colors
  bool operator==(const ImageRequest&) const = default;
};

/// The image of an asset catalog, stretched to the size. Null when the catalog has no such image or
/// the size is empty.
QImage drawn(const ImageRequest& request) {
  const auto asset = graphics::imageSet(request.bundle, request.name);
  if (!asset || request.pixels.isEmpty()) return {};
  const std::string_view svg = asset->svg(request.appearance);
  QSvgRenderer renderer(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
  QImage picture(request.pixels, QImage::Format_ARGB32_Premultiplied);
  if (!renderer.isValid() || picture.isNull()) return {};
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter, QRectF(picture.rect()));
  if (asset->isTemplate) {
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), toQColor(request.tint));
  }
  return picture;
}

struct KeptImages : foundation::Cache<ImageRequest, QImage> {
  KeptImages() : Cache(32) {}
};

QImage imagePicture(const ImageRequest& request) {
  constexpr qint64 largestKept = 512 * 1024;  // bytes; 32 pictures are kept
  const auto draw = [&] { return drawn(request); };
  const qint64 bytes = qint64{4} * request.pixels.width() * request.pixels.height();
  return bytes <= largestKept ? applicationLifetime<KeptImages>().get(request, draw) : draw();
}

/// `rect` with round corners.
QPainterPath rounded(const QRectF& rect, double topRadius, double bottomRadius) {
  const double top = std::min({topRadius, rect.width() / 2, rect.height()});
  const double bottom = std::min({bottomRadius, rect.width() / 2, rect.height() - top});
  QPainterPath path(QPointF(rect.left(), rect.top() + top));
  const auto corner = [&path](double x, double y, double radius, double angle) {
    if (radius <= 0) return path.lineTo(x, y);
    path.arcTo(x, y, 2 * radius, 2 * radius, angle, -90);
  };
  corner(rect.left(), rect.top(), top, 180);
  corner(rect.right() - 2 * top, rect.top(), top, 90);
  corner(rect.right() - 2 * bottom, rect.bottom() - 2 * bottom, bottom, 0);
  corner(rect.left(), rect.bottom() - 2 * bottom, bottom, 270);
  path.closeSubpath();
  return path;
}

/// The memory of `image`.
render::Pixels pixelsOf(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()),
          static_cast<std::size_t>(image.bytesPerLine()) / sizeof(std::uint32_t),
          static_cast<std::size_t>(image.width()), static_cast<std::size_t>(image.height())};
}

template <class Draw>
void smoothly(QPainter& painter, Draw draw) {
  const bool antialiased = painter.testRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  painter.setRenderHint(QPainter::Antialiasing, antialiased);
}

}  // namespace

ScenePainter::ScenePainter(QPainter& painter, double scale) : painter_(&painter), scale_(scale) {}

ScenePainter::ScenePainter(QImage& empty, double scale)
    : image_(&empty), scale_(scale), ground_(pixelsOf(empty)) {}

/// Begins a painter on first use: that is expensive, and texts with pictures need none.
QPainter& ScenePainter::painter() {
  if (!painter_) painter_ = &own_.emplace(image_);
  return *painter_;
}

void ScenePainter::paint(const render::Scene& scene) {
  appearance_ = scene.appearance;
  for (const render::Item& item : scene.items) {
    std::visit([this](const auto& what) { draw(what); }, item);
  }
}

layout::Rect ScenePainter::scaled(const layout::Rect& frame) const {
  return {{frame.left() * scale_, frame.top() * scale_},
          {frame.size.width * scale_, frame.size.height * scale_}};
}

QRectF ScenePainter::deviceRect(const layout::Rect& frame) const {
  return toRect(layout::PixelGrid(1).round(scaled(frame)));
}

void ScenePainter::fill(const QRectF& device, graphics::RGBA color) {
  if (ground_ && ground_->fill(toRect(device), color)) return;
  painter().fillRect(device, toQColor(color));
}

void ScenePainter::draw(const render::TextItem& item) {
  const auto paint = [&](graphics::RGBA ground) { return pictureOf(item, ground); };
  const auto blend = [&](const render::InkPicture& ink, layout::Point at) {
    const auto* pixels = reinterpret_cast<const uchar*>(ink.pixels.data());
    const QSize size = QSizeF(ink.frame.size.width, ink.frame.size.height).toSize();
    painter().drawImage(toPoint(at), QImage(pixels, size.width(), size.height(),
                                            QImage::Format_ARGB32_Premultiplied));
  };
  if (ground_ && ground_->paint(item, scale_, engine_.pictures(), paint, blend)) return;
  drawText(item);
  if (ground_) ground_->inkedAround(scaled(item.frame));
}

/// The text on its ground, with room around it for ink that leaves its frame.
render::InkPicture ScenePainter::pictureOf(const render::TextItem& item,
                                           graphics::RGBA ground) const {
  const QSizeF frame = toRect(scaled(item.frame)).size();
  const int room = static_cast<int>(std::ceil(frame.height()));
  QImage image(frame.toSize() + QSize(2 * room, 2 * room), QImage::Format_ARGB32_Premultiplied);
  image.fill(toQColor(ground));
  QPainter painter(&image);
  painter.translate(room, room);
  ScenePainter(painter, scale_).drawText({{{}, item.frame.size}, item.text});
  painter.end();
  return render::InkPicture::cropped(pixelsOf(image), {double(room), double(room)}, ground);
}

void ScenePainter::drawText(const render::TextItem& item) {
  // A frame is the measured size after some additions, which may lose the last bits.
  constexpr double slack = 1.0 / 256;
  const ShapedText& shaped = engine_.shape(item.text, item.frame.size.width + slack);
  const double unit = shaped.unit * scale_;
  const bool fromRight = item.text.direction == layout::LayoutDirection::rightToLeft;
  for (const ShapedText::Line& line : shaped.lines) {
    const double left = fromRight ? item.frame.right() - line.advance : item.frame.left();
    const layout::PixelGrid grid(1);
    const double x = grid.round(left * scale_);
    const double y = grid.round((item.frame.top() + line.baseline) * scale_);
    const auto decorate = [&](bool text::Run::*isSet, text::Stroke ShapingFont::*which) {
      for (const ShapedText::Span& span : line.spans) {
        const text::Run& run = item.text.runs[span.run];
        if (!(run.*isSet)) continue;
        text::Stroke stroke = engine_.font(run.font).*which;
        if (isSet == &text::Run::underline && run.thickUnderline) stroke.thickness *= 2;
        fill(toRect(stroke.rect(x + span.left * scale_, x + span.right * scale_, y,
                                run.font.points * scale_)),
             run.color);
      }
    };
    decorate(&text::Run::underline, &ShapingFont::underline);
    for (const ShapedText::Piece& piece : line.pieces) {
      const QTransform base = painter().transform();
      painter().setTransform(QTransform(unit, 0, 0, unit, x, y), true);
      painter().setPen(toQColor(item.text.runs[piece.run].color));
      painter().drawGlyphRun({}, piece.glyphs);
      painter().setTransform(base);
    }
    decorate(&text::Run::strikethrough, &ShapingFont::strikethrough);
  }
}

void ScenePainter::draw(const render::ImageItem& item) {
  const QRectF device = deviceRect(item.frame);
  const QImage picture =
      imagePicture({item.bundle, item.name, device.size().toSize(), appearance_, item.tint});
  if (!picture.isNull()) painter().drawImage(device.topLeft(), picture);
  if (ground_) ground_->painted(toRect(device));
}

void ScenePainter::draw(const render::FillItem& item) {
  const QRectF device = deviceRect(item.frame);
  if (item.topCornerRadius <= 0 && item.bottomCornerRadius <= 0) {
    if (ground_) ground_->filled(toRect(device), item.color);
    return fill(device, item.color);
  }
  // Round corners are not moved to whole pixels.
  if (ground_) ground_->painted(toRect(device.adjusted(-1, -1, 1, 1)));
  smoothly(painter(), [&](QPainter& to) {
    to.fillPath(rounded(toRect(scaled(item.frame)), item.topCornerRadius * scale_,
                        item.bottomCornerRadius * scale_),
                toQColor(item.color));
  });
}

void ScenePainter::draw(const render::ClipItem& item) {
  const QRectF device = deviceRect(item.frame);
  if (ground_) ground_->clip(toRect(device));
  painter().setClipRect(device, Qt::IntersectClip);
}

void ScenePainter::draw(const render::StrokeItem& item) {
  const QRectF outer = deviceRect(item.frame);
  const int beside = item.cornerRadius > 0 ? 1 : 0;
  if (ground_) ground_->painted(toRect(outer.adjusted(-beside, -beside, beside, beside)));
  if (item.cornerRadius > 0) {
    const double width = item.width * scale_, half = width / 2;
    const double radius = std::max(item.cornerRadius * scale_ - half, 0.0);
    const QRectF middle = toRect(scaled(item.frame)).adjusted(half, half, -half, -half);
    return smoothly(painter(), [&](QPainter& to) {
      to.strokePath(rounded(middle, radius, radius), QPen(toQColor(item.color), width));
    });
  }
  const double limit = std::min(outer.width(), outer.height()) / 2;
  const double w = std::min(std::max(1.0, std::round(item.width * scale_)), limit);
  const QRectF inner = outer.adjusted(w, w, -w, -w);
  fill({outer.topLeft(), QPointF(outer.right(), inner.top())}, item.color);
  fill({QPointF(outer.left(), inner.bottom()), outer.bottomRight()}, item.color);
  fill({QPointF(outer.left(), inner.top()), inner.bottomLeft()}, item.color);
  fill({inner.topRight(), QPointF(outer.right(), inner.bottom())}, item.color);
}

}  // namespace quorix::qt
