#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace quorix::tool {

/// Says on the standard error stream how far a command is that takes longer than two seconds: on a
/// terminal in one line that goes away at the end, else in a line every two seconds.
class Progress {
 public:
  /// `command` goes through `count` `things`.
  Progress(std::string command, std::string things, std::size_t count);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// One more of them begins.
  void step();

 private:
  using Clock = std::chrono::steady_clock;

  std::string command_, things_;
  std::size_t count_, begun_ = 0;
  bool onTerminal_, said_ = false;
  Clock::time_point next_;
};

}  // namespace quorix::tool
