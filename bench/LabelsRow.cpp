#include "bench/LabelsRow.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

namespace quorix::bench {
namespace {

QFont rowFont() {
  QFont font(QStringLiteral("Saans"));
  font.setPixelSize(14);
  return font;
}

QFont titleFont() {
  QFont font = rowFont();
  font.setUnderline(true);
  font.setCapitalization(QFont::AllUppercase);
  return font;
}

QFont feeFont() {
  QFont font = rowFont();
  font.setWeight(QFont::Medium);
  return font;
}

QFont baseFeeFont() {
  QFont font = rowFont();
  font.setStrikeOut(true);
  return font;
}

QPalette inkPalette(const QColor& color) {
  QPalette palette;
  palette.setColor(QPalette::WindowText, color);
  return palette;
}

QLabel* label(const QString& text, const QFont& font, const QPalette& palette, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setFont(font);
  label->setPalette(palette);
  label->setText(text);
  return label;
}

}  // namespace

LabelsRow::LabelsRow(const Shopper& shopper, QWidget* parent) : QWidget(parent) {
  static const QFont title = titleFont(), fee = feeFont(), baseFee = baseFeeFont();
  static const QPalette ink = inkPalette(inkColor()), faded = inkPalette(fadedColor());
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(shopper.label);
  setAccessibleDescription(shopper.hint);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(12);
  layout->addWidget(label(shopper.title, title, ink, this));
  layout->addStretch();
  layout->addWidget(label(shopper.fee, fee, ink, this));
  layout->addWidget(label(shopper.baseFee, baseFee, faded, this));
}

void LabelsRow::mouseReleaseEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint())) emit activated();
}

void LabelsRow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space) {
    emit activated();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace quorix::bench
