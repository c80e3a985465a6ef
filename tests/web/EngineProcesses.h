#pragma once

#include <sys/types.h>

#include <vector>

namespace quorix::testing {

/// The processes that the engine runs for this one, their own children included.
std::vector<pid_t> engineProcesses();
/// Those of them that run pages: the engine forks them from another of its processes.
std::vector<pid_t> engineRenderers();

}  // namespace quorix::testing
