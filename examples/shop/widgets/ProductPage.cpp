#include "examples/shop/widgets/ProductPage.h"

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Art.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/ScoreSection.h"
#include "examples/shop/widgets/SizePicker.h"
#include "examples/shop/widgets/WidgetPanel.h"

namespace quorix::examples {

ProductPage::ProductPage(Shop& shop, QWidget* parent) : ScrollPage(parent) {
  auto* picture = new Art(QStringLiteral("overshirt"), 14, 0, this);
  picture->followWidth(0.52, 300);
  setBanner(picture);

  auto* name = new Label(Label::Look::title, this);
  auto* price = new Label(Label::Look::price, this);
  auto* size = new Label(Label::Look::heading, this);
  auto* goodToKnow = new Label(Label::Look::heading, this);
  auto* description = new Label(Label::Look::quiet, this);

  column().addWidget(name);
  column().addSpacing(4);
  column().addWidget(price);
  column().addWidget(new ScoreSection(shop, this));
  column().addSpacing(18);
  column().addWidget(size);
  column().addSpacing(10);
  column().addWidget(new SizePicker(shop, this));
  column().addSpacing(24);
  column().addWidget(goodToKnow);
  column().addSpacing(10);
  column().addWidget(new WidgetPanel(WidgetPanel::Kind::info, shop, this));
  column().addSpacing(20);
  column().addWidget(description);

  const auto follow = [=, &shop] {
    name->setText(shop.words()["product"]);
    price->setText(shop.price());
    size->setText(shop.words()["size"]);
    goodToKnow->setText(shop.words()["goodToKnow"]);
    description->setText(shop.words()["description"]);
    picture->setAccessibleName(shop.words()["productPicture"]);
  };
  connect(&shop, &Shop::changed, this, follow);
  follow();
}

}  // namespace quorix::examples
