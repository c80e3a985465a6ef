#include "examples/shop/widgets/DemoNote.h"

#include <QEvent>
#include <QPainter>
#include <QRegularExpression>

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
    const bool left = !shop.leftFor().isEmpty();
    // Words break at spaces only, and an address has none.
    QString address = shop.leftFor();
    address.replace(QRegularExpression(QStringLiteral("([/?&])")), QStringLiteral("\\1\u200b"));
    setText(QStringLiteral("Opened outside the app: %1\nThis is a demo, and nothing answers there.")
                .arg(address));
    if (left) place();
    setVisible(left);
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
  setGeometry((over.width() - width) / 2, over.height() - height - 16, width, height);
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
