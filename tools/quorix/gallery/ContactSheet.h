#pragma once

#include <QImage>
#include <string>
#include <vector>

namespace quorix::gallery {

/// Pictures with a line below each, in rows on one page.
struct ContactSheet {
  struct Entry {
    QImage picture;
    std::string caption;
  };

  /// The page, `width` points wide (more if a picture is wider), at the pictures' scale. Null if it
  /// would be larger than an image can be.
  static QImage paint(const std::vector<Entry>& entries, double width);
};

}  // namespace quorix::gallery
