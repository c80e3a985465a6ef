#pragma once

#include <QImage>
#include <cstdint>
#include <functional>

#include "examples/shop/Choices.h"

namespace quorix::examples {

// Indexes into the shop's lists, for scenes that name them.

enum Who { ana, ben, chie, dana, eli };
enum Language { english, spanish, german, arabic, french, japanese };
enum Appearance { desktop, light, dark };
enum Face { widgetsOwn, shops, shopsLarger, shopsLargest };

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

/// Lets everything that is under way come to rest. Main thread.
void settle();

/// The frame that `grab` gives once a page of the web fills its lower half and no longer changes,
/// or what it gives when that takes too long.
QImage frameWithPage(const std::function<QImage()>& grab);

}  // namespace quorix::examples
