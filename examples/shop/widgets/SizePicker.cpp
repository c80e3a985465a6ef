#include "examples/shop/widgets/SizePicker.h"

#include <QHBoxLayout>

#include "examples/shop/Shop.h"
#include "examples/shop/widgets/ShopButton.h"

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
      follow();  // the chosen one stays so when pressed again
    });
    connect(&shop, &Shop::changed, chip, follow);
    follow();
    row->addWidget(chip);
  }
  row->addStretch(1);
}

}  // namespace quorix::examples
