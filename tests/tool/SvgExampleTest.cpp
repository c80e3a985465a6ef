#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTransform>
#include <functional>

#include "Tool.h"

namespace {

/// The mean difference of two pictures' pixels: 0 if they are equal, 255 for a negative.
double difference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x)
      sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
  }
  return sum / (double(a.width()) * a.height());
}

QImage onPaper(QSize size, const std::function<void(QPainter&)>& draw) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  draw(painter);
  painter.end();
  // Scaled down, because text is aligned to whole pixels on a screen but not in a file.
  return image.scaled(size / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

TEST(SvgExample, DrawsWhatQtDraws) {
  const Tool tool;
  const auto made = tool.shell(QUORIX_SVG
                               " . && TOKEN=$(quorix mint --score 0.82 --currency EUR --base 600 "
                               "--discounted 300) && quorix score --client-id x $TOKEN "
                               "--width 343 --scale 2 --out row.png && quorix info "
                               "--form imperative --width 343 --scale 2 --out imperative.png");
  ASSERT_EQ(made.status, 0) << made.err;
  for (const char* widget : {"row", "imperative"}) {
    const QImage qt(tool.path(widget) + QStringLiteral(".png"));
    QSvgRenderer svg(tool.path(widget) + QStringLiteral(".svg"));
    const QImage ours = onPaper(qt.size(), [&](QPainter& painter) { svg.render(&painter); });
    const QImage theirs =
        onPaper(qt.size(), [&](QPainter& painter) { painter.drawImage(QPoint(), qt); });
    EXPECT_LT(difference(ours, theirs), 4) << widget;
    EXPECT_GT(difference(ours, ours.transformed(QTransform::fromScale(-1, 1))), 8)
        << widget << " has little ink";
  }
}
