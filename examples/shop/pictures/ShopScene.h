#pragma once

#include <cstdint>

#include "examples/shop/Choices.h"

namespace quorix::examples {

class Shop;

/// A moment in the shop, for a picture of it.
struct ShopScene {
  enum class Page : std::uint8_t { product, bag, emptyBag };
  enum class Open : std::uint8_t { nothing, details, overlay };

  const char* name;  ///< of the picture, without what its face puts before it
  Choices choices;
  Page page = Page::product;
  Open open = Open::nothing;

  /// Brings `shop` to that moment, but for what a tap opens.
  void set(Shop& shop) const;
};

}  // namespace quorix::examples
