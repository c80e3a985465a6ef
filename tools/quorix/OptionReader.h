#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/graphics/RGBA.h"
#include "tools/quorix/Arguments.h"

namespace quorix::tool {

/// Reads typed values from arguments. Stores the first error, so that a command can read all values
/// and then check once.
///
///     OptionReader read(arguments);
///     const double width = read.number("--width", 375, {1, 10000});
///     if (read.failure()) return *read.failure();
class OptionReader {
 public:
  struct Range {
    double least;
    double most;
  };

  explicit OptionReader(const Arguments& arguments) : arguments_(arguments) {}

  bool has(std::string_view option) const { return arguments_.has(option); }
  std::string text(std::string_view option, std::string_view fallback) const;
  std::optional<std::string> optionalText(std::string_view option) const {
    return arguments_.value(option);
  }
  double number(std::string_view option, double fallback, Range range);
  std::optional<double> optionalNumber(std::string_view option, Range range);
  /// A signed 64-bit integer.
  std::int64_t integer(std::string_view option, std::int64_t fallback);
  /// The index of the option's value in its names; absent if it was not given.
  std::optional<std::size_t> choice(std::string_view option) const {
    return arguments_.choice(option);
  }

  /// "#RRGGBB"; opaque.
  std::optional<graphics::RGBA> color(std::string_view option);

  void fail(std::string message);
  const std::optional<Failure>& failure() const { return failure_; }

 private:
  const Arguments& arguments_;
  std::optional<Failure> failure_;
};

}  // namespace quorix::tool
