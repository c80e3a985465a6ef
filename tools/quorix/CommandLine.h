#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

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

/// The text for the standard output, or the failure.
using Outcome = std::variant<std::string, Failure>;

/// The variable for an option's value: a switch, a text, a number, or the index of a name.
using Target = std::variant<bool*, std::string*, std::optional<std::string>*, std::int64_t*,
                            double*, std::optional<double>*, int*, std::optional<int>*>;

/// The valid values of an option: `names`, or numbers from `least` to `most`. Without either, any
/// value is valid.
struct Valid {
  std::span<const std::string_view> names = {};
  double least = 0;
  double most = 0;
};
inline Valid oneOf(std::span<const std::string_view> names) { return {names}; }
inline Valid between(double least, double most) { return {{}, least, most}; }

/// An option of a command, or its operand: the one argument besides options. If an option is given
/// twice, the last one counts.
struct Option {
  std::string_view name;  ///< "--width"; of an operand "TOKEN", or "[TOKEN]" if it may be left out,
                          ///< or with dots at the end if further words belong to it
  std::string_view value;  ///< what help calls its value: "POINTS"; empty for a switch
  std::string_view help;   ///< with units and default; "{}" stands for the valid values
  Target to = {};
  Valid valid = {};
  bool required = false;  ///< only for a text
};

/// A command of the tool: its help, its command line and its work. Help, the manual page and the
/// shells' completions are made from this.
struct Command {
  std::string_view name;     ///< one word or two: "score", "strings check"
  std::string_view purpose;  ///< a line for the list of commands, then further sentences
  std::vector<Option> options = {};
  Option operand = {};            ///< no name: none
  std::string_view details = {};  ///< a paragraph below the options
  std::string_view example;       ///< whole lines that can be pasted into a shell
  std::function<Outcome()> run;
};

/// Writes the values in `words` into the variables of `command`. An option's value is the next
/// word, or follows "=" in the same word. A word that begins with "--" is an option, never a value;
/// all words after a lone "--" are operands.
std::optional<Failure> parse(std::span<const std::string> words, const Command& command);

/// The words that set the variables of `options` to their current values.
std::vector<std::string> wordsOf(std::span<const Option> options);

/// The valid values of `option`, for a sentence: "a, b or c", "1 to 10".
std::string validValues(const Option& option);

/// `; did you mean "dark"?` for the entry of `names` that `word` probably misspells; empty if none
/// is similar.
std::string didYouMean(std::string_view word, std::span<const std::string_view> names);

}  // namespace quorix::tool
