#include "examples/shop/widgets/IconButton.h"

#include <QPainter>

#include "examples/shop/widgets/FocusShown.h"

namespace quorix::examples {

IconButton::IconButton(const QString& name, QWidget* parent)
    : QAbstractButton(parent),
      onLight_(QStringLiteral(":/shop/art/%1-on-light.svg").arg(name)),
      onDark_(QStringLiteral(":/shop/art/%1-on-dark.svg").arg(name)) {
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setFixedSize(sizeHint());
}

void IconButton::setBadge(int number) {
  badge_ = number;
  update();
}

void IconButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (underMouse() || isFocusShown(*this)) {
    painter.setPen(isFocusShown(*this) ? QPen(palette().color(QPalette::WindowText), 2)
                                       : QPen(Qt::NoPen));
    painter.setBrush(palette().alternateBase());
    painter.drawEllipse(rect().adjusted(1, 1, -1, -1));
  }
  painter.save();
  if (pointing_ && isRightToLeft()) {
    painter.translate(width(), 0);
    painter.scale(-1, 1);
  }
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  (dark ? onDark_ : onLight_).render(&painter, QRectF(10, 10, 24, 24));
  painter.restore();
  if (badge_ > 0) paintBadge(painter);
}

void IconButton::paintBadge(QPainter& painter) const {
  constexpr double height = 17;
  QFont face = font();
  face.setPixelSize(11);
  face.setWeight(QFont::DemiBold);
  const QString number = QString::number(badge_);
  const double wide = qMax(height, QFontMetricsF(face).horizontalAdvance(number) + 8);
  const QRectF place(isRightToLeft() ? 4 : width() - wide - 4, 5, wide, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().highlight());
  painter.drawRoundedRect(place, height / 2, height / 2);
  painter.setFont(face);
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawText(place, Qt::AlignCenter, number);
}

}  // namespace quorix::examples
