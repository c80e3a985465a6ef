#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// An option of a command, or its operand: the one argument besides options.
struct Option {
  std::string_view name;  ///< "--width"; of an argument "TOKEN", or "[TOKEN]" if it may be left out
  std::string_view value;  ///< what help calls its value: "POINTS"; empty for a switch
  std::string_view help;   ///< with units and default; "{}" stands for the list of `names`
  std::span<const std::string_view> names = {};  ///< the only valid values; empty if any is valid
  bool required = false;
};

/// The arguments of one command, split into options and operand. If an option is given twice, the
/// last one counts.
class Arguments {
 public:
  /// Splits `words`. An option's value is the next word, or follows "=" in the same word. A word
  /// that begins with "--" is an option, never a value; all words after a lone "--" are operands.
  /// The operand is required if `operand` has a name, optional if the name is in brackets, and not
  /// allowed if the name is empty. If the name ends in dots, further words belong to it. A value
  /// that is not one of its option's names is refused.
  static std::variant<Arguments, Failure> parse(std::span<const std::string> words,
                                                std::span<const Option> options,
                                                const Option& operand);

  /// Whether `words` ask for help instead of running the command.
  static bool wantHelp(std::span<const std::string> words);

  bool has(std::string_view option) const { return values_.contains(option); }
  /// The option's value, empty for a switch; absent if it was not given.
  std::optional<std::string> value(std::string_view option) const;
  /// The index of the option's value in its names; absent if it was not given.
  std::optional<std::size_t> choice(std::string_view option) const;
  const std::optional<std::string>& operand() const { return operand_; }

 private:
  std::optional<Failure> takeOption(std::span<const std::string>& words);
  std::optional<Failure> takeOperand(const std::string& word, const Option& operand);

  std::span<const Option> options_;
  std::map<std::string, std::string, std::less<>> values_;
  std::optional<std::string> operand_;
};

}  // namespace quorix::tool
