#pragma once

#include <QImage>

namespace quorix::gallery {

/// `image` with a table of its colours where those are 256 at the most, which halves its file;
/// otherwise as it is. No colour changes; an alpha channel is dropped.
QImage withFewColors(const QImage& image);

}  // namespace quorix::gallery
