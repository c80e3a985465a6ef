#pragma once

#include <QImage>

namespace quorix::gallery {

/// `image` with a table of its 256 most frequent colors, which makes its file a third; a rare
/// shade becomes the nearest of them. An alpha channel is dropped.
QImage withFewColors(const QImage& image);

}  // namespace quorix::gallery
