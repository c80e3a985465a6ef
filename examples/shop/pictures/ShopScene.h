#pragma once

#include <QImage>
#include <cstdint>
#include <functional>

#include "examples/shop/Choices.h"

namespace quorix::examples {

// Indexes into the shop's lists that scenes use by name.

enum Who { ana, ben, chie, dana, eli };
enum Language { english, spanish, german, arabic, french, japanese };
enum Appearance { desktop, light, dark };
enum Face { widgetsOwn, shops, shopsLarger, shopsLargest };

class Shop;

/// A state of the shop, for a picture.
struct ShopScene {
  enum class Page : std::uint8_t { product, bag, emptyBag };
  enum class Open : std::uint8_t { nothing, details, overlay };

  const char* name;  ///< of the picture, without the toolkit's prefix
  Choices choices;
  Page page = Page::product;
  Open open = Open::nothing;

  /// Sets `shop` to that state, except what a tap opens.
  void set(Shop& shop) const;
};

/// Waits until all requests and motion have ended. Main thread.
void settle();

/// The frame from `grab` once a web page fills its lower half and no longer changes. After a time
/// limit, the frame from then.
QImage frameWithPage(const std::function<QImage()>& grab);

}  // namespace quorix::examples
