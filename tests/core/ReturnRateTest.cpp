#include <limits>

#include "QuorixWidgets/score/ScoreWidgetViewModel.h"
#include "Vectors.h"

using quorix::hasReturnRate;
using quorix::returnRateText;

namespace {

TEST(ReturnRate, RoundsHalvesAwayFromZero) {
  forEachRow("rates", [](simdjson::dom::element row) {
    EXPECT_EQ(returnRateText(bitsOfDouble(row, "score_bits")), text(row, "rate"));
  });
}

TEST(ReturnRate, ReachesToTheEndsOf64Bits) {
  const double highest = 0x1p63 / 100, lowest = -0x1.fffffffffffffp62 / 100;
  EXPECT_TRUE(hasReturnRate(highest));
  EXPECT_EQ(returnRateText(highest), "-9223372036854775808%");
  EXPECT_TRUE(hasReturnRate(lowest));
  EXPECT_EQ(returnRateText(lowest), "9223372036854774784%");
}

TEST(ReturnRateDeathTest, StopsTheProcessBeyond64Bits) {
  using Limits = std::numeric_limits<double>;
  for (const double score : {-0x1p63 / 100, 0x1.0000000000001p63 / 100, Limits::max(),
                             Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_FALSE(hasReturnRate(score)) << score;
    EXPECT_DEATH(returnRateText(score), "Fatal error: .*return rate") << score;
  }
}

}  // namespace
