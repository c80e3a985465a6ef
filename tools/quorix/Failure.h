#pragma once

#include <string>
#include <utility>

namespace quorix::tool {

/// The failure of a command: one line for the standard error stream, the exit status, and the text
/// that is still printed on the standard output.
struct Failure {
  static constexpr int refusedStatus = 1;
  static constexpr int usageStatus = 2;

  /// The command line is wrong. No input was read.
  static Failure usage(std::string message) { return {usageStatus, std::move(message), {}}; }
  /// The command line is valid, but its input cannot be used.
  static Failure refused(std::string message) { return {refusedStatus, std::move(message), {}}; }

  int status;
  std::string message;
  std::string output;
};

}  // namespace quorix::tool
