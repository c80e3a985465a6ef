#include "examples/shop/widgets/DemoNote.h"

#include <QEvent>
#include <QPainter>

#include "examples/shop/Shop.h"

namespace quorix::examples {

DemoNote::DemoNote(Shop& shop, QWidget* parent) : QLabel(parent) {
  QFont face = font();
  face.setPixelSize(13);
  setFont(face);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setContentsMargins(14, 12, 14, 12);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setStyleSheet(QStringLiteral("color: #20242f"));
  parent->installEventFilter(this);
  const auto follow = [this, &shop] {
    const bool speaks = !shop.note().isEmpty();
    setText(shop.note());
    if (speaks) place();
    setVisible(speaks);
  };
  connect(&shop, &Shop::changed, this, follow);
  follow();
}

bool DemoNote::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) place();
  return QLabel::eventFilter(watched, event);
}

void DemoNote::place() {
  const QWidget& over = *parentWidget();
  const int width = qMin(over.width() - 32, 480);
  const int height = heightForWidth(width);
  setGeometry((over.width() - width) / 2, over.height() - height - 88, width, height);
  raise();
}

void DemoNote::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#ffc24b"));
  painter.drawRoundedRect(rect(), 10, 10);
  painter.end();
  QLabel::paintEvent(event);
}

}  // namespace quorix::examples
