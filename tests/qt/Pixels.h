#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QRect>
#include <algorithm>
#include <cstdlib>

namespace quorix::testing {

/// The largest difference of a channel, 0 to 255.
inline int distance(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

/// The rectangle around the pixels that differ by more than `tolerance`, in two pictures of one
/// size.
inline QRect differing(const QImage& one, const QImage& other, int tolerance = 0) {
  QRect all;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (distance(one.pixel(x, y), other.pixel(x, y)) > tolerance) all |= QRect(x, y, 1, 1);
    }
  }
  return all;
}

/// Compares a picture with the reference NAME.png in the tests' data. Tolerates small differences,
/// because the shades of text depend on the version of the font rasterizer.
///
///     EXPECT_TRUE(matchesPicture(picture(row, options), "row-light"));
///
/// On failure it writes NAME.actual.png and NAME.diff.png (the differences in red over the greyed
/// reference) into "pictures" beside the test program. With QUORIX_UPDATE_PICTURES=1 in the
/// environment it writes the reference instead.
::testing::AssertionResult matchesPicture(const QImage& actual, const QString& name);

}  // namespace quorix::testing
