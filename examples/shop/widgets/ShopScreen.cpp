#include "examples/shop/widgets/ShopScreen.h"

#include <QHBoxLayout>
#include <QStackedWidget>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/BagPage.h"
#include "examples/shop/widgets/Buttons.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/Notice.h"
#include "examples/shop/widgets/ProductPage.h"
#include "examples/shop/widgets/ShopHeader.h"

namespace quorix::examples {
namespace {

constexpr int footerHeight = 74;

}  // namespace

ShopScreen::ShopScreen(Shop& shop, QWidget* parent)
    : QWidget(parent), notice_(new Notice(footerHeight, this)) {
  auto* header = new ShopHeader(shop, this);  // screen readers read the first child first
  auto* pages = new QStackedWidget(this);
  pages->addWidget(new ProductPage(shop, pages));
  pages->addWidget(new BagPage(shop, pages));
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSpacing(0);
  all->addWidget(header);
  all->addWidget(pages, 1);
  all->addWidget(makeFooter(shop));

  const auto follow = [=, this, &shop] {
    setLayoutDirection(shop.rightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    pages->setCurrentIndex(shop.bagOpen() ? 1 : 0);
  };
  connect(&shop, &Shop::changed, this, follow);
  connect(&shop, &Shop::noticed, notice_, &Notice::say);
  follow();
}

QWidget* ShopScreen::makeFooter(Shop& shop) {
  auto* footer = new QWidget(this);
  footer->setFixedHeight(footerHeight);
  auto* act = new ShopButton(ShopButton::Look::primary, footer);
  act->setMaximumWidth(560);
  act->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  auto* lines = new QVBoxLayout(footer);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  lines->addWidget(new Hairline(footer));
  auto* row = new QHBoxLayout;
  row->setContentsMargins(20, 0, 20, 0);
  row->addStretch(1);
  row->addWidget(act, 1000);
  row->addStretch(1);
  lines->addLayout(row, 1);

  connect(act, &ShopButton::clicked, &shop, [&shop] {
    if (shop.bagOpen()) {
      shop.openBag(false);
    } else {
      shop.addToBag();
    }
  });
  const auto follow = [act, &shop] {
    act->setText(shop.words()[shop.bagOpen() ? "keepShopping" : "addToBag"]);
  };
  connect(&shop, &Shop::changed, act, follow);
  follow();
  return footer;
}

void ShopScreen::resizeEvent(QResizeEvent*) { notice_->place(); }

}  // namespace quorix::examples
