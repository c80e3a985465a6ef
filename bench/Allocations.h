#pragma once

#include <cstddef>

namespace quorix::bench {

/// The number of memory allocations of this process so far, in all its libraries (glibc only).
std::size_t allocations();

}  // namespace quorix::bench
