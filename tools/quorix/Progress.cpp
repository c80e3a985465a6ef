#include "tools/quorix/Progress.h"

#include <cstdio>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quorix::tool {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 2s;  // between lines, and before the first

bool isTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace

Progress::Progress(std::string command, std::string things, std::size_t count)
    : command_(std::move(command)),
      things_(std::move(things)),
      count_(count),
      onTerminal_(isTerminal()),
      next_(Clock::now() + patience) {}

Progress::~Progress() {
  if (onTerminal_ && said_) std::fputs("\r\033[K", stderr);
}

void Progress::step() {
  ++begun_;
  const auto now = Clock::now();
  if (now < next_) return;
  next_ = now + (onTerminal_ ? 200ms : patience);
  said_ = true;
  std::fprintf(stderr, "%squorix: %s: %zu of %zu %s%s", onTerminal_ ? "\r" : "", command_.c_str(),
               begun_, count_, things_.c_str(), onTerminal_ ? "" : "\n");
}

}  // namespace quorix::tool
