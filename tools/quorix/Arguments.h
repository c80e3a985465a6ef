#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tools/quorix/Failure.h"
#include "tools/quorix/Option.h"

namespace quorix::tool {

/// The arguments of one command, sorted into options and operands. Of an option given twice the last
/// counts.
class Arguments {
 public:
  /// Sorts `words`. Values follow their option as the next word or behind "="; a next word that
  /// begins with "--" is an option, not a value, and everything behind a lone "--" is an operand.
  static std::variant<Arguments, Failure> parse(std::span<const std::string> words,
                                                std::span<const Option> options,
                                                std::size_t operands);

  /// Whether `words` ask for help rather than for the command.
  static bool wantHelp(std::span<const std::string> words);

  bool has(std::string_view option) const { return values_.contains(option); }
  /// The option's value, empty for a switch; nothing when it was not given.
  std::optional<std::string> value(std::string_view option) const;
  const std::vector<std::string>& operands() const { return operands_; }

 private:
  std::map<std::string, std::string, std::less<>> values_;
  std::vector<std::string> operands_;
};

}  // namespace quorix::tool
