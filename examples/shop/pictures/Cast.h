#pragma once

namespace quorix::examples {

// Indexes into the shop's lists, for scenes that name them.

enum Who { ana, ben, chie, dana, eli };
enum Language { english, spanish, german, arabic, french, japanese };
enum Appearance { desktop, light, dark };
enum Face { widgetsOwn, shops, shopsLarger, shopsLargest };

}  // namespace quorix::examples
