#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "tools/quorix/Failure.h"

namespace quorix::tool {

/// An option of a command, or the one argument that it takes besides options.
struct Option {
  std::string_view name;  ///< "--width"; of an argument "TOKEN", or "[TOKEN]" if it may be left out
  std::string_view value;  ///< what help calls its value: "POINTS"; empty for a switch
  std::string_view help;   ///< with units and default; "{}" stands for the list of `names`
  std::span<const std::string_view> names = {};  ///< the only values, if there is a list of them
  bool required = false;
};

/// The arguments of one command, sorted into options and operand. Of an option given twice the
/// last counts.
class Arguments {
 public:
  /// Sorts `words`. Values follow their option as the next word or behind "="; a next word that
  /// begins with "--" is an option, not a value, and everything behind a lone "--" is an operand.
  /// One operand is wanted where `operand` has a name, may be given where the name stands in
  /// brackets, and none where that is empty; where it ends in dots, further words belong to it. A
  /// value that is not one of its option's names is refused.
  static std::variant<Arguments, Failure> parse(std::span<const std::string> words,
                                                std::span<const Option> options,
                                                const Option& operand);

  /// Whether `words` ask for help rather than for the command.
  static bool wantHelp(std::span<const std::string> words);

  bool has(std::string_view option) const { return values_.contains(option); }
  /// The option's value, empty for a switch; nothing when it was not given.
  std::optional<std::string> value(std::string_view option) const;
  /// Which of the option's names was given; nothing when the option was not.
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
