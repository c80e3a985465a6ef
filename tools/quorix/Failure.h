#pragma once

#include <string>
#include <utility>

namespace quorix::tool {

/// Why a command did not do what was asked: one line for the standard error stream, the status that
/// the process ends with, and what is printed on the standard output nevertheless.
struct Failure {
  static constexpr int refusedStatus = 1;
  static constexpr int usageStatus = 2;

  /// The command line is wrong; no input was looked at.
  static Failure usage(std::string message) { return {usageStatus, std::move(message), {}}; }
  /// The command line is right and what it names can't be used.
  static Failure refused(std::string message) { return {refusedStatus, std::move(message), {}}; }

  int status;
  std::string message;
  std::string output;
};

}  // namespace quorix::tool
