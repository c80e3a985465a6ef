#pragma once

#include <QByteArray>
#include <QImage>
#include <string>
#include <vector>

namespace quorix::gallery {

struct CaptionedPicture {
  QImage picture;
  std::string caption;
};

/// `pictures` in rows on one page, `width` points wide (more if a picture is wider), at their
/// scale. Each has its caption below it. Null if the page would be larger than an image can be.
QImage contactSheet(const std::vector<CaptionedPicture>& pictures, double width);

/// Reduces `image` to its 256 most frequent colors, which makes the file a third of the size. Other
/// colors become the nearest of these. Drops an alpha channel.
QImage withFewColors(const QImage& image);

/// The bytes of a PNG file with `image`. `smallest` takes longer.
QByteArray png(const QImage& image, bool smallest = false);

}  // namespace quorix::gallery
