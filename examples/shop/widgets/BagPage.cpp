#include "examples/shop/widgets/BagPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Art.h"
#include "examples/shop/widgets/Buttons.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/WidgetPanel.h"

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

BagPage::BagPage(Shop& shop, QWidget* parent)
    : ScrollPage(parent),
      shop_(shop),
      title_(new Label(Label::Look::title, this)),
      empty_(new Label(Label::Look::quiet, this)),
      lines_(new QWidget(this)),
      sum_(new QWidget(this)),
      total_(new Label(Label::Look::strong, sum_)),
      amount_(new Label(Label::Look::strong, sum_)),
      returns_(new Label(Label::Look::heading, this)),
      returnsText_(new Label(Label::Look::quiet, this)) {
  auto* lines = new QVBoxLayout(lines_);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  auto* sum = new QHBoxLayout(sum_);
  sum->setContentsMargins(0, 16, 0, 16);
  amount_->setWordWrap(false);
  sum->addWidget(total_, 1);
  sum->addWidget(amount_);
  empty_->setContentsMargins(0, 6, 0, 16);

  column().addSpacing(4);
  column().addWidget(title_);
  column().addSpacing(6);
  column().addWidget(empty_);
  column().addWidget(lines_);
  column().addWidget(sum_);
  column().addWidget(new Hairline(this));
  column().addSpacing(22);
  column().addWidget(returns_);
  column().addSpacing(6);
  column().addWidget(returnsText_);
  column().addSpacing(14);
  column().addWidget(new WidgetPanel(WidgetPanel::Kind::uiInfo, shop, this));

  connect(&shop, &Shop::changed, this, &BagPage::follow);
  follow();
}

void BagPage::follow() {
  title_->setText(shop_.words()["bag"]);
  empty_->setText(shop_.words()["bagEmpty"]);
  total_->setText(shop_.words()["total"]);
  amount_->setText(shop_.total());
  returns_->setText(shop_.words()["returns"]);
  returnsText_->setText(shop_.words()["returnsText"]);
  followBag();
}

void BagPage::followBag() {
  // A line's own button may have called this, so delete the lines later.
  for (auto* line : lines_->findChildren<BagLine*>()) {
    lines_->layout()->removeWidget(line);
    line->hide();
    line->deleteLater();
  }
  for (const Bag::Line& line : shop_.bag().lines()) {
    lines_->layout()->addWidget(new BagLine(line, shop_, lines_));
  }
  const bool holds = shop_.bagCount() > 0;
  empty_->setVisible(!holds);
  lines_->setVisible(holds);
  sum_->setVisible(holds);
}

}  // namespace quorix::examples
