#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace quorix::examples {

/// A drawing on the goods' background, as large as fits.
class Art : public QWidget {
  Q_OBJECT

 public:
  /// `margin` around the drawing and `radius` of the corners, in pixels.
  Art(const QString& name, int margin, int radius, QWidget* parent = nullptr);

  /// Sets the height to the width times `share`, up to `most` pixels.
  void followWidth(double share, int most);

  bool hasHeightForWidth() const override { return share_ > 0; }
  int heightForWidth(int width) const override { return qMin(qRound(width * share_), most_); }
  QSize sizeHint() const override { return {430, heightForWidth(430)}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSvgRenderer drawing_;
  int margin_;
  int radius_;
  double share_ = 0;
  int most_ = 0;
};

}  // namespace quorix::examples
