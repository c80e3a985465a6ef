#pragma once

#include <string>

namespace quorix {

/// The return rate that belongs to `score`, 1 - score, in whole percent, halves away from zero:
/// 0.355 gives "65%". A rate beyond 64 bits, which no issued score has, stops the process. Any
/// thread.
std::string returnRateText(double score);

}  // namespace quorix
