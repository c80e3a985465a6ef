#include "examples/shop/widgets/Label.h"

#include <QEvent>

namespace quorix::examples {
namespace {

int pixelsOf(Label::Look look) {
  switch (look) {
    case Label::Look::title:
      return 22;
    case Label::Look::price:
      return 17;
    case Label::Look::strong:
      return 16;
    case Label::Look::body:
      return 15;
    default:
      return 14;
  }
}

bool isHeavy(Label::Look look) {
  return look == Label::Look::title || look == Label::Look::heading || look == Label::Look::strong;
}

}  // namespace

Label::Label(Look look, QWidget* parent) : QLabel(parent) {
  QFont face = font();
  face.setPixelSize(pixelsOf(look));
  face.setWeight(isHeavy(look) ? QFont::DemiBold : QFont::Normal);
  setFont(face);
  setForegroundRole(look == Look::quiet ? QPalette::PlaceholderText : QPalette::WindowText);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  align();
}

void Label::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::LayoutDirectionChange) align();
}

// Aligns to the page's direction. The text's own direction is wrong for a price, which has no
// right-to-left letters.
void Label::align() {
  setAlignment(Qt::AlignAbsolute | Qt::AlignVCenter |
               (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
}

}  // namespace quorix::examples
