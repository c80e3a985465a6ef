#pragma once

#include <QImage>

namespace quorix::gallery {

/// Reduces `image` to its 256 most frequent colors, which makes the file a third of the size. Other
/// colors become the nearest of these. Drops an alpha channel.
QImage withFewColors(const QImage& image);

}  // namespace quorix::gallery
