#include "examples/shop/widgets/BagLine.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Art.h"
#include "examples/shop/widgets/Hairline.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/ShopButton.h"

namespace quorix::examples {

BagLine::BagLine(const Bag::Line& line, Shop& shop, QWidget* parent) : QWidget(parent) {
  const QString size = line.size;
  auto* picture = new Art(QStringLiteral("overshirt"), 6, 8, this);
  picture->setFixedSize(72, 72);
  auto* name = new Label(Label::Look::body, this);
  name->setText(shop.words()["product"]);
  auto* pieces = new Label(Label::Look::quiet, this);
  const QString count = line.count > 1 ? QStringLiteral("  ×\u2009%1").arg(line.count) : QString();
  pieces->setText(shop.words()["sizeOf"].arg(size) + count);
  auto* remove = new ShopButton(ShopButton::Look::link, this);
  remove->setText(shop.words()["remove"]);
  remove->setAccessibleDescription(shop.words()["sizeOf"].arg(size));
  connect(remove, &ShopButton::clicked, &shop, [size, &shop] { shop.takeOut(size); });
  auto* price = new Label(Label::Look::body, this);
  price->setText(shop.shopper().priceOf(line.count));
  price->setWordWrap(false);

  auto* what = new QVBoxLayout;
  what->setSpacing(2);
  what->addStretch(1);
  what->addWidget(name);
  what->addWidget(pieces);
  what->addWidget(remove, 0, Qt::AlignLeft);
  what->addStretch(1);
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, 12, 0, 12);
  row->setSpacing(14);
  row->addWidget(picture);
  row->addLayout(what, 1);
  row->addWidget(price, 0, Qt::AlignTop);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addLayout(row);
  all->addWidget(new Hairline(this));
}

}  // namespace quorix::examples
