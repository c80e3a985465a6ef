#include "examples/shop/ShopScene.h"

#include "examples/shop/Shop.h"

namespace quorix::examples {

void ShopScene::set(Shop& shop) const {
  shop.setMoving(false);
  shop.choose(choices);
  shop.emptyBag();
  if (page == Page::bag) {
    for (const char* size : {"M", "M", "L"}) {
      shop.chooseSize(QLatin1String(size));
      shop.addToBag();
    }
  }
  shop.chooseSize(QStringLiteral("M"));
  shop.openBag(page != Page::product);
}

}  // namespace quorix::examples
