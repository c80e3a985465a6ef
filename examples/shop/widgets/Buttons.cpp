#include <QPainter>
#include <QStyle>

#include "examples/shop/widgets/Buttons.h"

namespace quorix::examples {

ShopButton::ShopButton(Look look, QWidget* parent) : QAbstractButton(parent), look_(look) {
  setAttribute(Qt::WA_Hover);
  setCheckable(look == Look::chip);
  setCursor(Qt::PointingHandCursor);
  // Only the keyboard moves the focus and its ring; a mouse press does not.
  setFocusPolicy(Qt::TabFocus);
  QFont face = font();
  face.setPixelSize(look == Look::primary ? 16 : 14);
  if (look == Look::primary) face.setWeight(QFont::DemiBold);
  setFont(face);
}

QSize ShopButton::sizeHint() const {
  if (look_ == Look::primary) return {200, 50};
  if (look_ == Look::chip) return {52, 44};
  return {fontMetrics().horizontalAdvance(text()) + 2, 26};
}

QBrush ShopButton::ground() const {
  if (isFilled()) {
    const QColor accent = palette().color(QPalette::Highlight);
    return isDown() ? accent.darker(120) : accent;
  }
  if (look_ == Look::chip && underMouse()) return palette().alternateBase();
  return Qt::NoBrush;
}

QColor ShopButton::ink() const {
  if (isFilled()) return palette().color(QPalette::HighlightedText);
  return palette().color(look_ == Look::link ? QPalette::Link : QPalette::WindowText);
}

void ShopButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont face = font();
  if (look_ == Look::chip && isChecked()) face.setWeight(QFont::DemiBold);
  if (look_ == Look::link) {
    face.setUnderline(underMouse() || isFocusShown(*this));
  } else {
    const double line = isFocusShown(*this) ? 2 : isFilled() ? 0 : 1;
    const auto color = isFocusShown(*this) ? QPalette::WindowText : QPalette::Mid;
    painter.setPen(line > 0 ? QPen(palette().color(color), line) : QPen(Qt::NoPen));
    painter.setBrush(ground());
    const double radius = look_ == Look::primary ? 12 : 8;
    const double inset = line / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
  }
  painter.setFont(face);
  painter.setPen(ink());
  const auto leading = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
  painter.drawText(rect(), look_ == Look::link ? leading | Qt::AlignVCenter : Qt::AlignCenter,
                   text());
}

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
