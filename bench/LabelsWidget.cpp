#include "bench/LabelsWidget.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

namespace quorix::bench {

LabelsWidget::LabelsWidget(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

QFont LabelsWidget::font(int pixels) {
  QFont font(QStringLiteral("Saans"));
  font.setPixelSize(pixels);
  return font;
}

QPalette LabelsWidget::ink(const QColor& color) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, color);
  return palette;
}

QLabel* LabelsWidget::label(const QString& text, const QFont& font, const QPalette& palette) {
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  label->setFont(font);
  label->setPalette(palette);
  label->setText(text);
  return label;
}

void LabelsWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) emit activated();
}

void LabelsWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space) {
    emit activated();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace quorix::bench
