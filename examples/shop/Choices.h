#pragma once

namespace quorix::examples {

/// What the demo bar is set to: indexes into the shop's lists.
struct Choices {
  int shopper = 0;
  int language = 0;
  int appearance = 0;  ///< 0 the desktop's, 1 light, 2 dark
  int face = 0;

  bool operator==(const Choices&) const = default;
};

}  // namespace quorix::examples
