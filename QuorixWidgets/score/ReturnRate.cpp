#include "QuorixWidgets/score/ReturnRate.h"

#include <cmath>
#include <cstdint>

#include "platform/foundation/FatalError.h"

namespace quorix {

std::string returnRateText(double score) {
  const double percent = std::round((1.0 - score) * 100.0);
  constexpr double kLimit = 0x1p63;
  // Written so that it also fails for what is not a number.
  if (!(percent >= -kLimit && percent < kLimit)) {
    foundation::fatalError("the return rate lies outside the 64-bit range", "ReturnRate");
  }
  return std::to_string(static_cast<std::int64_t>(percent)) + "%";
}

}  // namespace quorix
