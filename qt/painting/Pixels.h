#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <cstddef>

#include "platform/graphics/RGBA.h"

namespace quorix::qt {

/// A picture of a text: premultiplied ARGB to be blended, or with an opaque ground to be copied.
struct InkPicture {
  QImage image;   ///< null: nothing to see
  QPoint offset;  ///< of the image from its text's origin; device pixels

  std::size_t bytes() const { return static_cast<std::size_t>(image.sizeInBytes()); }

  /// Without the borders that show `ground` alone.
  InkPicture cropped(graphics::RGBA ground) const;
};

namespace pixels {

// Change an image in premultiplied ARGB as a QPainter would. For small parts, beginning a QPainter
// costs more than the painting. All parts must lie within the image. Any thread.

void fill(QImage& image, const QRect& part, QRgb color);

/// Copies `picture`, 32 bits a pixel, to `at`.
void copy(const QImage& picture, QImage& onto, QPoint at);

}  // namespace pixels
}  // namespace quorix::qt
