#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <limits>

#include "QuorixWidgets/score/ReturnRate.h"
#include "Vectors.h"

using quorix::returnRateText;

namespace {

TEST(ReturnRate, RoundsHalvesAwayFromZero) {
  forEachRow("rates", [](simdjson::dom::element row) {
    std::uint64_t bits = 0;
    const std::string hex = text(row, "score_bits");
    std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
    EXPECT_EQ(returnRateText(std::bit_cast<double>(bits)), text(row, "rate"));
  });
}

TEST(ReturnRate, ReachesToTheEndsOf64Bits) {
  EXPECT_EQ(returnRateText(0x1p63 / 100), "-9223372036854775808%");
  EXPECT_EQ(returnRateText(-0x1.fffffffffffffp62 / 100), "9223372036854774784%");
}

TEST(ReturnRateDeathTest, StopsTheProcessBeyond64Bits) {
  using Limits = std::numeric_limits<double>;
  for (const double score : {-0x1p63 / 100, 0x1.0000000000001p63 / 100, Limits::max(),
                             Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    EXPECT_DEATH(returnRateText(score), "Fatal error: .*return rate") << score;
  }
}

}  // namespace
