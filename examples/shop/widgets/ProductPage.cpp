#include "examples/shop/widgets/ProductPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/Art.h"
#include "examples/shop/widgets/Buttons.h"
#include "examples/shop/widgets/Label.h"
#include "examples/shop/widgets/WidgetPanel.h"

namespace quorix::examples {

SizePicker::SizePicker(Shop& shop, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  for (const QString& size : shop.sizes()) {
    auto* chip = new ShopButton(ShopButton::Look::chip, this);
    chip->setText(size);
    chip->setFixedSize(chip->sizeHint());
    const auto follow = [chip, size, &shop] {
      chip->setChecked(shop.size() == size);
      chip->setAccessibleName(shop.words()["sizeOf"].arg(size));
    };
    connect(chip, &ShopButton::clicked, &shop, [size, follow, &shop] {
      shop.chooseSize(size);
      follow();  // keeps the chosen size checked when it is pressed again
    });
    connect(&shop, &Shop::changed, chip, follow);
    follow();
    row->addWidget(chip);
  }
  row->addStretch(1);
}

ScoreSection::ScoreSection(Shop& shop, QWidget* parent) : QWidget(parent) {
  auto* row = new WidgetPanel(WidgetPanel::Kind::scoreRow, shop, this);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 18, 0, 0);
  lines->setSpacing(16);
  lines->addWidget(new Hairline(this));
  lines->addWidget(row);
  lines->addWidget(new Hairline(this));
  const auto fit = [this, row] { setVisible(!row->isEmpty()); };
  connect(&shop, &Shop::changed, this, fit);  // after the row, which was connected first
  fit();
}

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
