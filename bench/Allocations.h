#pragma once

#include <cstddef>

namespace quorix::bench {

/// How often this process has allocated memory so far, by all its libraries together (glibc only).
std::size_t allocations();

}  // namespace quorix::bench
