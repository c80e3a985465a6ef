#pragma once

#include <QImage>
#include <QWidget>

namespace quorix::qt {

/// Shows a picture at its place, through which the pointer reaches what lies below. Main thread.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(QWidget& parent);
  void setPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage picture_;
};

}  // namespace quorix::qt
