#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace quorix::tool {

/// Reports the progress of a command that takes longer than two seconds on the standard error
/// stream. On a terminal this is one line that is removed at the end, otherwise a new line every
/// two seconds.
class Progress {
 public:
  /// `command` processes `count` `things`.
  Progress(std::string command, std::string things, std::size_t count);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// The next one begins.
  void step();

 private:
  using Clock = std::chrono::steady_clock;

  std::string command_, things_;
  std::size_t count_, begun_ = 0;
  bool onTerminal_, said_ = false;
  Clock::time_point next_;
};

}  // namespace quorix::tool
