#include "examples/shop/widgets/ShopHeader.h"

#include <QGridLayout>
#include <QPainter>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Buttons.h"
#include "examples/shop/widgets/Label.h"

namespace quorix::examples {

ShopHeader::ShopHeader(Shop& shop, QWidget* parent) : QWidget(parent) {
  setFixedHeight(52);
  auto* back = new IconButton(QStringLiteral("back"), this);
  back->setPointing(true);
  auto* name = new Label(Label::Look::heading, this);
  name->setText(QStringLiteral("FJORD & THREAD"));
  name->setWordWrap(false);
  QFont face = name->font();
  face.setLetterSpacing(QFont::AbsoluteSpacing, 3);
  name->setFont(face);
  auto* bag = new IconButton(QStringLiteral("bag"), this);
  auto* row = new QGridLayout(this);
  row->setContentsMargins(7, 0, 7, 0);
  row->addWidget(name, 0, 0, 1, 2, Qt::AlignCenter);
  row->addWidget(back, 0, 0, Qt::AlignLeft);
  row->addWidget(bag, 0, 1, Qt::AlignRight);
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
  QPainter(this).fillRect(0, height() - 1, width(), 1, palette().mid());
}

}  // namespace quorix::examples
