#include "tools/quorix/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <numeric>

namespace quorix::tool {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// The number of letters to add, remove, change or swap with their neighbour to turn `a` into `b`.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> beforeLast(b.size() + 1), last(b.size() + 1), row(b.size() + 1);
  std::iota(last.begin(), last.end(), 0);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool same = lower(a[i - 1]) == lower(b[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) &&
                           lower(a[i - 2]) == lower(b[j - 1]);
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    std::swap(beforeLast, last);
    std::swap(last, row);
  }
  return last[b.size()];
}

std::string quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string shortest(double number) {
  char digits[32];
  return {digits, std::to_chars(digits, digits + sizeof digits, number).ptr};
}

/// Whether the whole of `text` spells a number, which is written into `number`.
template <class Number>
bool spells(const std::string& text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && rest == end;
}

/// Reads `text` into the variable of `option`. Returns what the option wants if the text is not
/// valid.
struct Reader {
  const Option& option;
  const std::string& text;

  std::string operator()(bool* to) const {
    *to = true;
    return {};
  }
  std::string operator()(std::string* to) const {
    *to = text;
    return {};
  }
  std::string operator()(std::int64_t* to) const {
    return spells(text, *to) ? "" : "a whole number of 64 bits";
  }
  std::string operator()(double* to) const {
    // This form of the comparison also refuses NaN.
    const bool inside = spells(text, *to) && *to >= option.valid.least && *to <= option.valid.most;
    return inside ? "" : "a number from " + validValues(option);
  }
  std::string operator()(int* to) const {
    const auto& names = option.valid.names;
    *to = static_cast<int>(std::ranges::find(names, text) - names.begin());
    return {};
  }
  template <class T>
  std::string operator()(std::optional<T>* to) const {
    return (*this)(&to->emplace());
  }
};

/// The value of the variable of an option; absent if the option need not be given.
struct Printer {
  const Valid& valid;

  std::optional<std::string> operator()(const bool* from) const {
    return *from ? std::optional("") : std::nullopt;
  }
  std::optional<std::string> operator()(const std::string* from) const { return *from; }
  std::optional<std::string> operator()(const std::int64_t* from) const {
    return std::to_string(*from);
  }
  std::optional<std::string> operator()(const double* from) const { return shortest(*from); }
  std::optional<std::string> operator()(const int* from) const {
    return std::string(valid.names[static_cast<std::size_t>(*from)]);
  }
  template <class T>
  std::optional<std::string> operator()(const std::optional<T>* from) const {
    return *from ? (*this)(&**from) : std::nullopt;
  }
};

std::optional<Failure> take(const Option& option, const std::string& text) {
  const auto& names = option.valid.names;
  const bool unknown = !names.empty() && std::ranges::find(names, text) == names.end();
  const std::string wanted =
      unknown ? validValues(option) : std::visit(Reader{option, text}, option.to);
  if (wanted.empty()) return std::nullopt;
  return Failure::usage(std::string(option.name) + " wants " + wanted + ", not " + quoted(text) +
                        didYouMean(text, names));
}

/// Removes an option from the front of `words`, and the next word if that is its value.
std::optional<Failure> takeOption(std::span<const std::string>& words,
                                  std::span<const Option> options) {
  const std::string& word = words.front();
  words = words.subspan(1);
  const std::size_t equals = word.find('=');
  const std::string name = word.substr(0, equals);
  const auto option = std::ranges::find(options, name, &Option::name);
  if (option == options.end()) {
    std::vector<std::string_view> names{"--help"};
    for (const Option& known : options) names.push_back(known.name);
    return Failure::usage("unknown option " + quoted(name) + didYouMean(name, names));
  }
  const bool isSwitch = option->value.empty();
  if (equals != std::string::npos) {
    if (isSwitch) return Failure::usage(name + " takes no value");
    return take(*option, word.substr(equals + 1));
  }
  if (isSwitch) return take(*option, {});
  // A value may be "-" or a negative number.
  if (words.empty() || words.front().starts_with("--")) {
    return Failure::usage(name + " wants a value: " + name + ' ' + std::string(option->value));
  }
  const std::string& value = words.front();
  words = words.subspan(1);
  return take(*option, value);
}

Failure missing(const Option& option) {
  return Failure::usage(std::string(option.name) + " is missing");
}

}  // namespace

std::optional<Failure> parse(std::span<const std::string> words, const Command& command) {
  const Option& operand = command.operand;
  std::optional<std::string> argument;
  bool optionsEnded = false;
  while (!words.empty()) {
    const std::string& word = words.front();
    if (!optionsEnded && word.size() > 1 && word.front() == '-' && word != "--") {
      if (auto failure = takeOption(words, command.options)) return failure;
      continue;
    }
    words = words.subspan(1);
    if (!optionsEnded && word == "--") {
      optionsEnded = true;
    } else if (!argument && !operand.name.empty()) {
      argument = word;
    } else if (operand.name.find("...") != operand.name.npos) {
      *argument += ' ' + word;
    } else {
      return Failure::usage("unexpected argument " + quoted(word));
    }
  }
  if (argument) {
    if (auto failure = take(operand, *argument)) return failure;
  } else if (!operand.name.empty() && !operand.name.starts_with('[')) {
    return missing(operand);
  }
  for (const Option& option : command.options) {
    if (option.required && std::visit(Printer{option.valid}, option.to) == "") {
      return missing(option);
    }
  }
  return std::nullopt;
}

std::vector<std::string> wordsOf(std::span<const Option> options) {
  std::vector<std::string> words;
  for (const Option& option : options) {
    const auto value = std::visit(Printer{option.valid}, option.to);
    if (!value) continue;
    words.emplace_back(option.name);
    if (!option.value.empty()) words.push_back(*value);
  }
  return words;
}

std::string validValues(const Option& option) {
  const auto& [names, least, most] = option.valid;
  if (names.empty()) return shortest(least) + " to " + shortest(most);
  std::string list;
  for (const std::string_view name : names) {
    if (!list.empty()) list += name == names.back() ? " or " : ", ";
    list += name;
  }
  return list;
}

std::string didYouMean(std::string_view word, std::span<const std::string_view> names) {
  constexpr std::size_t shortestBeginning = 3;
  std::string_view nearest;
  // Do not suggest codes of two letters: they are too similar.
  std::size_t least =
      word.size() < shortestBeginning ? 1 : std::max<std::size_t>(1, word.size() / 3) + 1;
  for (const std::string_view name : names) {
    const bool begun = word.size() >= shortestBeginning && name.starts_with(word);
    const std::size_t steps = begun ? 0 : distance(word, name);
    if (steps >= least) continue;
    least = steps;
    nearest = name;
  }
  return nearest.empty() ? "" : "; did you mean \"" + std::string(nearest) + "\"?";
}

}  // namespace quorix::tool
