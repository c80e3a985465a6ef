#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

namespace quorix::qt::pixels {

// Change an image in premultiplied ARGB as a QPainter would. For small parts, beginning a QPainter
// costs more than the painting. All parts must lie within the image. Any thread.

void fill(QImage& image, const QRect& part, QRgb color);

/// Copies `picture`, 32 bits a pixel, to `at`.
void copy(const QImage& picture, QImage& onto, QPoint at);

/// Blends `picture`, premultiplied, at `at`. False, with some of it blended, if ink meets an opaque
/// pixel: there Qt blends letters by their brightness.
bool blend(const QImage& picture, QImage& onto, QPoint at);

}  // namespace quorix::qt::pixels
