#include "examples/shop/widgets/DemoNote.h"

#include "examples/shop/Shop.h"

namespace quorix::examples {

DemoNote::DemoNote(Shop& shop, QWidget* parent) : QLabel(parent) {
  QFont face = font();
  face.setPixelSize(13);
  setFont(face);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setContentsMargins(14, 10, 14, 10);
  setAutoFillBackground(true);
  setPalette(QPalette(QColor("#20242f"), QColor("#ffc24b"), {}, {}, {}, QColor("#20242f"),
                      QColor("#ffc24b")));
  const auto follow = [this, &shop] {
    setVisible(!shop.leftFor().isEmpty());
    setText(QStringLiteral("Opened outside the app: %1\nThis is a demo, and nothing answers there.")
                .arg(shop.leftFor()));
  };
  connect(&shop, &Shop::changed, this, follow);
  follow();
}

}  // namespace quorix::examples
