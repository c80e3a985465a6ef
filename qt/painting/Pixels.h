#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

namespace quorix::qt::pixels {

// What QPainter would do to an image in premultiplied ARGB, for so little of it that beginning to
// paint would cost more than the painting. Everything lies within the image. Any thread.

void fill(QImage& image, const QRect& part, QRgb color);

/// Puts all of `picture`, of 32 bits, at `at`.
void copy(const QImage& picture, QImage& onto, QPoint at);

/// Blends `picture`, premultiplied, at `at`. False, with some of it done, where ink meets an opaque
/// pixel, on which Qt blends letters by their brightness.
bool blend(const QImage& picture, QImage& onto, QPoint at);

}  // namespace quorix::qt::pixels
