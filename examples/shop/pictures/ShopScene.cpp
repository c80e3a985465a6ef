#include "examples/shop/pictures/ShopScene.h"

#include "examples/shop/Shop.h"

namespace quorix::examples {

void ShopScene::set(Shop& shop) const {
  shop.setMoving(false);
  shop.choose(choices);
  Bag bag;
  if (page == Page::bag) {
    for (const char* size : {"M", "M", "L"}) bag.add(QLatin1String(size));
  }
  shop.fillBag(bag);
  shop.openBag(page != Page::product);
}

}  // namespace quorix::examples
