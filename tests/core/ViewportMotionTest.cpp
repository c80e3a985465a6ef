#include "platform/hosting/ViewportMotion.h"

#include <gtest/gtest.h>

namespace quorix {
namespace {

TEST(ViewportMotion, ConcernsTheEdgesOfAListThatScrollsByWholePixels) {
  constexpr auto rowAt = [](double top) { return layout::Rect{{0, top}, {100, 20}}; };
  const struct {
    const char* what;
    std::optional<layout::Point> from, to;  ///< the parent's origin in a window of 300 by 100
    layout::Rect bounds;
    bool isConcerned;
    bool isNew = false;
  } rows[] = {
      {"in sight before and after", {{0, 0}}, {{0, -10.5}}, rowAt(40), false},
      {"the same, when it is new", {{0, 0}}, {{0, -10.5}}, rowAt(40), true, true},
      {"moved by a part of a pixel", {{0, 0}}, {{0, -10.25}}, rowAt(40), true},
      {"the same, sideways", {{0, 0}}, {{0.25, 0}}, rowAt(40), true},
      {"leaves at the top", {{0, 0}}, {{0, -10}}, rowAt(0), true},
      {"comes at the bottom", {{0, 0}}, {{0, -10}}, rowAt(90), true},
      {"ends where the viewport does", {{0, 0}}, {{0, -10}}, rowAt(80), false},
      {"comes from out of sight", {{0, 0}}, {{0, -100}}, rowAt(140), true},
      {"goes out of sight", {{0, -100}}, {{0, 0}}, rowAt(140), true},
      {"stays out of sight", {{0, 0}}, {{0, -10}}, rowAt(200), false},
      {"out of sight and new", {{0, 0}}, {{0, -10.25}}, rowAt(200), false, true},
      {"touches what is in sight", {{0, 0}}, {{0, -10}}, rowAt(110), false},
      {"in a parent that is turned now", {{0, 0}}, {}, rowAt(40), true},
      {"in a parent that was turned", {}, {{0, 0}}, rowAt(40), true},
  };
  for (const auto& row : rows) {
    hosting::ViewportMotion motion;
    for (const auto& origin : {row.from, row.to}) {
      const layout::Point corner = origin.value_or(layout::Point{});
      motion.move({{-corner.x, -corner.y}, {300, 100}}, origin, 2);
    }
    EXPECT_EQ(motion.concerns(row.bounds, row.isNew), row.isConcerned) << row.what;
  }
}

}  // namespace
}  // namespace quorix
