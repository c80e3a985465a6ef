#include "tools/quorix/Arguments.h"

#include <algorithm>
#include <utility>

namespace quorix::tool {
namespace {

constexpr std::string_view endOfOptions = "--";

bool isOption(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

/// A value may be "-" or a negative number.
bool isValue(std::string_view word) { return !word.starts_with("--"); }

std::string quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

}  // namespace

bool Arguments::wantHelp(std::span<const std::string> words) {
  const auto end = std::ranges::find(words, endOfOptions);
  return std::any_of(words.begin(), end,
                     [](const std::string& word) { return word == "--help" || word == "-h"; });
}

std::variant<Arguments, Failure> Arguments::parse(std::span<const std::string> words,
                                                  std::span<const Option> options,
                                                  std::string_view operand) {
  Arguments result;
  bool optionsEnded = false;
  bool wantsOperand = !operand.empty();
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (optionsEnded || !isOption(word)) {
      if (!std::exchange(wantsOperand, false)) {
        return Failure::usage("unexpected argument " + quoted(word));
      }
      result.operand_ = word;
      continue;
    }
    if (word == endOfOptions) {
      optionsEnded = true;
      continue;
    }
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const auto option = std::ranges::find(options, name, &Option::name);
    if (option == options.end()) return Failure::usage("unknown option " + quoted(name));

    std::string value;
    if (option->value.empty()) {
      if (equals != std::string::npos) return Failure::usage(name + " takes no value");
    } else if (equals != std::string::npos) {
      value = word.substr(equals + 1);
    } else if (i + 1 < words.size() && isValue(words[i + 1])) {
      value = words[++i];
    } else {
      return Failure::usage(name + " wants a value: " + name + ' ' + std::string(option->value));
    }
    result.values_[name] = std::move(value);
  }
  if (wantsOperand && !operand.starts_with('['))
    return Failure::usage(std::string(operand) + " is missing");
  return result;
}

std::optional<std::string> Arguments::value(std::string_view option) const {
  const auto found = values_.find(option);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

}  // namespace quorix::tool
