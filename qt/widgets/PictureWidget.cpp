#include "qt/widgets/PictureWidget.h"

#include <QPainter>

namespace quorix::qt {

PictureWidget::PictureWidget(QWidget& parent) : QWidget(&parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void PictureWidget::setPicture(const QImage& picture) {
  picture_ = picture;
  resize(picture.deviceIndependentSize().toSize());
  setVisible(!picture.isNull());
  update();
}

void PictureWidget::paintEvent(QPaintEvent*) { QPainter(this).drawImage(0, 0, picture_); }

}  // namespace quorix::qt
