#include "examples/shop/widgets/ShopHeader.h"

#include <QHBoxLayout>
#include <QPainter>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/IconButton.h"

namespace quorix::examples {

ShopHeader::ShopHeader(Shop& shop, QWidget* parent) : QWidget(parent) {
  setFixedHeight(52);
  auto* back = new IconButton(QStringLiteral("back"), this);
  back->setPointing(true);
  auto* bag = new IconButton(QStringLiteral("bag"), this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 0, 8, 0);
  row->addWidget(back);
  row->addStretch(1);
  row->addWidget(bag);
  connect(back, &IconButton::clicked, &shop, [&shop] { shop.openBag(false); });
  connect(bag, &IconButton::clicked, &shop, [&shop] { shop.openBag(!shop.bagOpen()); });
  const auto follow = [=, &shop] {
    back->setVisible(shop.bagOpen());
    back->setAccessibleName(shop.words()["back"]);
    bag->setBadge(shop.bagCount());
    bag->setAccessibleName(shop.words()["bagOf"].arg(shop.bagCount()));
  };
  connect(&shop, &Shop::changed, this, follow);
  follow();
}

void ShopHeader::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QFont face = font();
  face.setPixelSize(14);
  face.setWeight(QFont::DemiBold);
  face.setLetterSpacing(QFont::AbsoluteSpacing, 3);
  painter.setFont(face);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("FJORD & THREAD"));
  painter.fillRect(0, height() - 1, width(), 1, palette().mid());
}

}  // namespace quorix::examples
