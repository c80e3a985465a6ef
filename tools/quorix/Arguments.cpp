#include "tools/quorix/Arguments.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tools/quorix/Names.h"

namespace quorix::tool {
namespace {

constexpr std::string_view endOfOptions = "--";

bool isOption(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

/// A value may be "-" or a negative number.
bool isValue(std::string_view word) { return !word.starts_with("--"); }

std::string quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

/// The error if `value` is not valid for `option`.
std::optional<Failure> mismatch(const Option& option, const std::string& value) {
  if (option.names.empty() || std::ranges::find(option.names, value) != option.names.end()) {
    return std::nullopt;
  }
  return Failure::usage(std::string(option.name) + " wants " + listed(option.names) + ", not " +
                        quoted(value) + didYouMean(value, option.names));
}

}  // namespace

bool Arguments::wantHelp(std::span<const std::string> words) {
  const auto end = std::ranges::find(words, endOfOptions);
  return std::any_of(words.begin(), end,
                     [](const std::string& word) { return word == "--help" || word == "-h"; });
}

/// Removes an option from the front of `words`, and the next word if that is its value.
std::optional<Failure> Arguments::takeOption(std::span<const std::string>& words) {
  const std::string& word = words.front();
  words = words.subspan(1);
  const std::size_t equals = word.find('=');
  const std::string name = word.substr(0, equals);
  const auto option = std::ranges::find(options_, name, &Option::name);
  if (option == options_.end()) {
    std::vector<std::string_view> names{"--help"};
    for (const Option& known : options_) names.push_back(known.name);
    return Failure::usage("unknown option " + quoted(name) + didYouMean(name, names));
  }
  std::string value;
  if (option->value.empty()) {
    if (equals != std::string::npos) return Failure::usage(name + " takes no value");
  } else if (equals != std::string::npos) {
    value = word.substr(equals + 1);
  } else if (!words.empty() && isValue(words.front())) {
    value = words.front();
    words = words.subspan(1);
  } else {
    return Failure::usage(name + " wants a value: " + name + ' ' + std::string(option->value));
  }
  if (auto failure = mismatch(*option, value)) return failure;
  values_[name] = std::move(value);
  return std::nullopt;
}

std::optional<Failure> Arguments::takeOperand(const std::string& word, const Option& operand) {
  if (operand_ && operand.name.find("...") != std::string_view::npos) {
    *operand_ += ' ' + word;
    return std::nullopt;
  }
  if (operand_ || operand.name.empty())
    return Failure::usage("unexpected argument " + quoted(word));
  operand_ = word;
  return mismatch(operand, word);
}

std::variant<Arguments, Failure> Arguments::parse(std::span<const std::string> words,
                                                  std::span<const Option> options,
                                                  const Option& operand) {
  Arguments result;
  result.options_ = options;
  bool optionsEnded = false;
  while (!words.empty()) {
    const std::string& word = words.front();
    std::optional<Failure> failure;
    if (!optionsEnded && word != endOfOptions && isOption(word)) {
      failure = result.takeOption(words);
    } else {
      words = words.subspan(1);
      if (optionsEnded || word != endOfOptions) failure = result.takeOperand(word, operand);
      optionsEnded = optionsEnded || word == endOfOptions;
    }
    if (failure) return *std::move(failure);
  }
  if (!result.operand_ && !operand.name.empty() && !operand.name.starts_with('[')) {
    return Failure::usage(std::string(operand.name) + " is missing");
  }
  for (const Option& option : options) {
    if (option.required && !result.has(option.name)) {
      return Failure::usage(std::string(option.name) + " is missing");
    }
  }
  return result;
}

std::optional<std::size_t> Arguments::choice(std::string_view option) const {
  const auto given = values_.find(option);
  if (given == values_.end()) return std::nullopt;
  const auto& names = std::ranges::find(options_, option, &Option::name)->names;
  return std::ranges::find(names, given->second) - names.begin();
}

std::optional<std::string> Arguments::value(std::string_view option) const {
  const auto found = values_.find(option);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

}  // namespace quorix::tool
