#include "bench/Labels.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QVBoxLayout>

#include "bench/Subjects.h"

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

namespace {

constexpr int kRowPixels = 14;

QFont title(QFont font) {
  font.setUnderline(true);
  font.setCapitalization(QFont::AllUppercase);
  return font;
}

QFont medium(QFont font) {
  font.setWeight(QFont::Medium);
  return font;
}

QFont struckThrough(QFont font) {
  font.setStrikeOut(true);
  return font;
}

}  // namespace

LabelsRow::LabelsRow(const Shopper& shopper, QWidget* parent) : LabelsWidget(parent) {
  static const QFont titleFont = title(font(kRowPixels)), feeFont = medium(font(kRowPixels)),
                     baseFeeFont = struckThrough(font(kRowPixels));
  static const QPalette dark = ink(inkColor()), faded = ink(fadedColor());
  setAccessibleName(shopper.label);
  setAccessibleDescription(shopper.hint);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(12);
  layout->addWidget(label(shopper.title, titleFont, dark));
  layout->addStretch();
  layout->addWidget(label(shopper.fee, feeFont, dark));
  layout->addWidget(label(shopper.baseFee, baseFeeFont, faded));
}

namespace {

constexpr int kInfoPixels = 13;

QFont underlined(QFont font) {
  font.setUnderline(true);
  return font;
}

QPalette grounded(QPalette palette) {
  palette.setColor(QPalette::Window, groundColor());
  return palette;
}

}  // namespace

LabelsInfo::LabelsInfo(const InfoSubject& info, QWidget* parent) : LabelsWidget(parent) {
  static const QFont titleFont = font(kInfoPixels), linkFont = underlined(font(kInfoPixels));
  static const QPalette texts = ink(inkColor()), ground = grounded(texts);
  static const QPixmap logo(QStringLiteral(":/bench/poweredBy.svg"));
  setPalette(ground);
  setAutoFillBackground(true);
  setAccessibleName(info.title);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(16);
  QLabel* title = label({}, titleFont, texts);
  title->setTextFormat(Qt::RichText);
  title->setWordWrap(true);
  title->setText(info.styledTitle);
  layout->addWidget(title);
  auto* line = new QHBoxLayout;
  layout->addLayout(line);
  line->addWidget(label(info.link, linkFont, texts));
  line->addStretch();
  auto* image = new QLabel(this);
  image->setPixmap(logo);
  line->addWidget(image);
}

}  // namespace quorix::bench
