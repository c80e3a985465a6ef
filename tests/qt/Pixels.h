#pragma once

#include <QImage>
#include <QRect>
#include <algorithm>
#include <cstdlib>

namespace quorix::testing {

/// Where two pictures of one size differ by more than `tolerance`, of 255, in a channel.
inline QRect differing(const QImage& one, const QImage& other, int tolerance = 0) {
  const auto apart = [=](QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))}) > tolerance;
  };
  QRect all;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (apart(one.pixel(x, y), other.pixel(x, y))) all |= QRect(x, y, 1, 1);
    }
  }
  return all;
}

}  // namespace quorix::testing
