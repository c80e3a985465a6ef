#include "qt/painting/ScenePainter.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <variant>

#include "qt/Conversions.h"
#include "qt/painting/Pixels.h"
#include "qt/painting/QtImages.h"

namespace quorix::qt {
namespace {

QRectF rounded(const QRectF& rect) {
  const QPointF topLeft(std::round(rect.left()), std::round(rect.top()));
  return {topLeft, QPointF(std::round(rect.right()), std::round(rect.bottom()))};
}

QPainterPath rounded(const QRectF& rect, double topRadius, double bottomRadius) {
  const double top = std::min({topRadius, rect.width() / 2, rect.height()});
  const double bottom = std::min({bottomRadius, rect.width() / 2, rect.height() - top});
  const auto corner = [](QPointF middle, double radius) {
    return QRectF(middle - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
  };
  QPainterPath path(QPointF(rect.left(), rect.top() + top));
  path.arcTo(corner(rect.topLeft() + QPointF(top, top), top), 180, -90);
  path.lineTo(rect.right() - top, rect.top());
  path.arcTo(corner(rect.topRight() + QPointF(-top, top), top), 90, -90);
  path.lineTo(rect.right(), rect.bottom() - bottom);
  path.arcTo(corner(rect.bottomRight() - QPointF(bottom, bottom), bottom), 0, -90);
  path.lineTo(rect.left() + bottom, rect.bottom());
  path.arcTo(corner(rect.bottomLeft() + QPointF(bottom, -bottom), bottom), 270, -90);
  path.closeSubpath();
  return path;
}

template <class Draw>
void smoothly(QPainter& painter, Draw draw) {
  const bool antialiased = painter.testRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::Antialiasing);
  draw(painter);
  painter.setRenderHint(QPainter::Antialiasing, antialiased);
}

}  // namespace

ScenePainter::ScenePainter(QPainter& painter, QtTextEngine& engine)
    : painter_(&painter),
      engine_(engine),
      base_(painter.transform()),
      toDevice_(painter.deviceTransform()),
      fromDevice_(toDevice_.inverted()),
      upright_(toDevice_.type() <= QTransform::TxScale) {}

ScenePainter::ScenePainter(QImage& empty, QtTextEngine& engine)
    : image_(&empty),
      engine_(engine),
      toDevice_(QTransform::fromScale(empty.devicePixelRatio(), empty.devicePixelRatio())),
      fromDevice_(toDevice_.inverted()),
      upright_(true),
      ground_(KnownGround()) {}

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
  for (; clips_ > 0; --clips_) painter().restore();
}

QPointF ScenePainter::onPixels(QPointF point) const {
  if (!upright_) return point;
  const QPointF device = toDevice_.map(point);
  return fromDevice_.map(QPointF(std::round(device.x()), std::round(device.y())));
}

QRectF ScenePainter::deviceRect(const layout::Rect& frame) const {
  return rounded(toDevice_.mapRect(toRect(frame)));
}

void ScenePainter::fill(const QRectF& device, graphics::RGBA color) {
  const QRect covered = device.toRect();
  if (!painter_ && color.alpha == 255 && image_->rect().contains(covered)) {
    copied_ |= covered;
    return pixels::fill(*image_, covered, toQColor(color).rgb());
  }
  painter().fillRect(fromDevice_.mapRect(device), toQColor(color));
}

void ScenePainter::draw(const render::TextItem& item) {
  if (ground_ && drawPicture(item)) return;
  drawText(item);
  if (!ground_) return;
  const QRectF frame = toDevice_.mapRect(toRect(item.frame));
  const int room = static_cast<int>(std::ceil(frame.height()));
  ground_->inked(frame.toAlignedRect().adjusted(-room, -room, room, room));
}

/// Draws the text from its picture. False if there is none for the ground under the text, or if the
/// text does not begin on a whole pixel.
bool ScenePainter::drawPicture(const render::TextItem& item) {
  const QPointF corner = toDevice_.map(QPointF(item.frame.left(), item.frame.top()));
  const double scale = toDevice_.m11();
  if (corner != QPointF(corner.toPoint()) || item.frame.size.height * scale >= 128) return false;
  const auto ground = ground_->under(toDevice_.mapRect(toRect(item.frame)).toAlignedRect());
  if (!ground) return false;
  const auto* picture =
      engine_.pictures().find(item, scale, *ground, [&] { return pictureOf(item, *ground); });
  if (!picture) return false;
  if (picture->image.isNull()) return true;
  const QRect ink(corner.toPoint() + picture->offset, picture->image.size());
  if (ground_->under(ink) != ground) return false;
  if (!copyPicture(picture->image, ink, *ground)) {
    painter().setTransform(fromDevice_);
    painter().drawImage(ink.topLeft(), picture->image);
    painter().setTransform(base_);
  }
  ground_->inked(ink);
  return true;
}

/// Copies the picture where that gives what drawing would: where nothing was painted, and with an
/// opaque ground over the same. False elsewhere, and once a painter was begun.
bool ScenePainter::copyPicture(const QImage& picture, const QRect& to, graphics::RGBA ground) {
  if (painter_ || !image_->rect().contains(to)) return false;
  if (ground.alpha != 255 && copied_.intersects(to)) return false;
  copied_ |= to;
  pixels::copy(picture, *image_, to.topLeft());
  return true;
}

/// The text on its ground, with room around it for ink that leaves its frame.
InkPicture ScenePainter::pictureOf(const render::TextItem& item, graphics::RGBA ground) const {
  const double scale = toDevice_.m11();
  const int room = static_cast<int>(std::ceil(item.frame.size.height * scale));
  const QSize frame = (QSizeF(item.frame.size.width, item.frame.size.height) * scale).toSize();
  QImage image(frame + QSize(2 * room, 2 * room), QImage::Format_ARGB32_Premultiplied);
  image.fill(toQColor(ground));
  QPainter painter(&image);
  painter.translate(room, room);
  painter.scale(scale, scale);
  ScenePainter(painter, engine_).drawText({{{}, item.frame.size}, item.text});
  painter.end();
  return InkPicture{image, {-room, -room}}.cropped(ground);
}

void ScenePainter::drawText(const render::TextItem& item) {
  // A frame is the measured size after some additions, which may lose the last bits.
  constexpr double slack = 1.0 / 256;
  const ShapedText& shaped = engine_.shape(item.text, item.frame.size.width + slack);
  const bool fromRight = item.text.direction == layout::LayoutDirection::rightToLeft;
  for (const ShapedText::Line& line : shaped.lines) {
    const double left = fromRight ? item.frame.right() - line.advance : item.frame.left();
    drawLine(line, shaped.unit, item.text, onPixels({left, item.frame.top() + line.baseline}));
  }
}

void ScenePainter::drawLine(const ShapedText::Line& line, double unit,
                            const text::AttributedText& text, QPointF origin) {
  for (const ShapedText::Span& span : line.spans) {
    const text::Run& run = text.runs[span.run];
    if (!run.underline) continue;
    ShapingFont::Stroke stroke = engine_.font(run.font).underline;
    if (run.thickUnderline) stroke.thickness *= 2;
    drawDecoration(span, origin, stroke, run);
  }
  for (const ShapedText::Piece& piece : line.pieces) {
    const graphics::RGBA color = text.runs[piece.run].color;
    painter().setTransform(QTransform(unit, 0, 0, unit, origin.x(), origin.y()) * base_);
    painter().setPen(toQColor(color));
    painter().drawGlyphRun({}, piece.glyphs);
    painter().setTransform(base_);
  }
  for (const ShapedText::Span& span : line.spans) {
    const text::Run& run = text.runs[span.run];
    if (!run.strikethrough) continue;
    drawDecoration(span, origin, engine_.font(run.font).strikethrough, run);
  }
}

void ScenePainter::drawDecoration(const ShapedText::Span& span, QPointF origin,
                                  ShapingFont::Stroke stroke, const text::Run& run) {
  const double top = (stroke.offset - stroke.thickness / 2) * run.font.points;
  const layout::Rect exact{{origin.x() + span.left, origin.y() + top},
                           {span.right - span.left, stroke.thickness * run.font.points}};
  QRectF device = toDevice_.mapRect(toRect(exact));
  const double thickness = std::max(1.0, std::round(device.height()));
  device.setTop(std::round(device.center().y() - thickness / 2));
  device.setHeight(thickness);
  fill(rounded(device), run.color);
}

void ScenePainter::draw(const render::ImageItem& item) {
  const QRectF device = deviceRect(item.frame);
  const QImage picture = QtImages::shared().picture(
      {item.bundle, item.name, device.size().toSize(), appearance_, item.tint});
  if (!picture.isNull()) painter().drawImage(fromDevice_.mapRect(device), picture);
  if (ground_) ground_->painted(device.toAlignedRect());
}

void ScenePainter::draw(const render::FillItem& item) {
  const QRectF device = deviceRect(item.frame);
  if (item.topCornerRadius <= 0 && item.bottomCornerRadius <= 0) {
    if (ground_) ground_->filled(device.toAlignedRect(), item.color);
    return fill(device, item.color);
  }
  // Round corners are not moved to whole pixels.
  if (ground_) ground_->painted(device.toAlignedRect().adjusted(-1, -1, 1, 1));
  smoothly(painter(), [&](QPainter& to) {
    to.fillPath(rounded(toRect(item.frame), item.topCornerRadius, item.bottomCornerRadius),
                toQColor(item.color));
  });
}

void ScenePainter::draw(const render::ClipItem& item) {
  painter().save();
  ++clips_;
  painter().setClipRect(fromDevice_.mapRect(deviceRect(item.frame)), Qt::IntersectClip);
}

void ScenePainter::draw(const render::StrokeItem& item) {
  const QRectF outer = deviceRect(item.frame);
  const int beside = item.cornerRadius > 0 ? 1 : 0;
  if (ground_) ground_->painted(outer.toAlignedRect().adjusted(-beside, -beside, beside, beside));
  if (item.cornerRadius > 0) {
    const double half = item.width / 2, radius = item.cornerRadius - half;
    const QRectF middle = toRect(item.frame).adjusted(half, half, -half, -half);
    return smoothly(painter(), [&](QPainter& to) {
      to.strokePath(rounded(middle, radius, radius), QPen(toQColor(item.color), item.width));
    });
  }
  const double scale = toDevice_.mapRect(QRectF(0, 0, 1, 1)).height();
  const double limit = std::min(outer.width(), outer.height()) / 2;
  const double w = std::min(std::max(1.0, std::round(item.width * scale)), limit);
  const QRectF inner = outer.adjusted(w, w, -w, -w);
  fill({outer.topLeft(), QPointF(outer.right(), inner.top())}, item.color);
  fill({QPointF(outer.left(), inner.bottom()), outer.bottomRight()}, item.color);
  fill({QPointF(outer.left(), inner.top()), inner.bottomLeft()}, item.color);
  fill({inner.topRight(), QPointF(outer.right(), inner.bottom())}, item.color);
}

}  // namespace quorix::qt
