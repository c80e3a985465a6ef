#include "tools/quorix/Help.h"

#include <algorithm>

#include "tools/quorix/Commands.h"
#include "tools/quorix/Names.h"

namespace quorix::tool {
namespace {

constexpr std::size_t lineWidth = 79;
constexpr std::size_t optionColumn = 28;
constexpr std::size_t commandColumn = 17;

/// `left`, and the words of `right`, broken into lines that start at `column`.
std::string twoColumns(std::string left, std::string_view right, std::size_t column) {
  std::string line = std::move(left), result;
  if (line.size() + 2 > column && column > 0) {
    result = line + '\n';
    line.clear();
  }
  line.resize(column, ' ');
  while (!right.empty()) {
    const std::size_t end = std::min(right.find_first_of(" \n"), right.size());
    const bool first = line.size() <= column;
    if (!first && line.size() + 1 + end > lineWidth) {
      result += line + '\n';
      line.assign(column, ' ');
    } else if (!first) {
      line += ' ';
    }
    line += right.substr(0, end);
    if (end < right.size() && right[end] == '\n') {
      result += line + '\n';
      line.assign(column, ' ');
    }
    right.remove_prefix(std::min(end + 1, right.size()));
  }
  return result + line + '\n';
}

std::string indented(std::string_view lines) {
  std::string result = "  ";
  for (const char c : lines) {
    result += c;
    if (c == '\n') result += "  ";
  }
  return result + '\n';
}

Outcome help(const Arguments& arguments) {
  const std::string& name = arguments.operand().value_or("");
  if (name.empty()) return helpText();
  const auto found = findCommand(std::span(&name, 1));
  if (const auto* failure = std::get_if<Failure>(&found)) return *failure;
  return helpText(*std::get<const Command*>(found));
}

}  // namespace

std::string usage(const Command& command) {
  std::string text(command.name);
  if (!command.operand.name.empty()) text += ' ' + std::string(command.operand.name);
  for (const Option& option : command.options) {
    if (option.required) text += ' ' + std::string(option.name) + ' ' + std::string(option.value);
  }
  return command.options.empty() ? text : text + " [options]";
}

std::string described(const Option& option) {
  std::string text(option.help);
  const std::size_t place = text.find("{}");
  if (place != std::string::npos) text.replace(place, 2, listed(option.names));
  return text;
}

std::string helpText() {
  std::string text = twoColumns("", toolPurpose, 0);
  text += "\nUsage: quorix COMMAND [options]\n\nCommands:\n";
  for (const Command* command : commands()) {
    const std::string_view firstLine = command->purpose.substr(0, command->purpose.find('\n'));
    text += twoColumns("  " + std::string(command->name), firstLine, commandColumn);
  }
  text += twoColumns("  --version", "Prints the version.", commandColumn);
  text += "\n\"quorix help COMMAND\" or \"quorix COMMAND --help\" tells the rest.\n\nExample:\n";
  text += indented("quorix score \"$(quorix mint)\" --out row.png");
  return text + '\n' + twoColumns("", "Exit status: " + std::string(exitStatus), 0);
}

std::string helpText(const Command& command) {
  std::string text =
      twoColumns("", command.purpose, 0) + "\nUsage: quorix " + usage(command) + '\n';
  if (!command.operand.help.empty()) {
    text += '\n' + twoColumns("  " + std::string(command.operand.name), described(command.operand),
                              optionColumn);
  }
  text += "\nOptions:\n";
  for (const Option& option : command.options) {
    std::string left = "  " + std::string(option.name);
    if (!option.value.empty()) left += ' ' + std::string(option.value);
    text += twoColumns(std::move(left), described(option), optionColumn);
  }
  text += twoColumns("  --help", "Prints this.", optionColumn);
  if (!command.details.empty()) text += '\n' + twoColumns("", command.details, 0);
  return text + "\nExample:\n" + indented(command.example);
}

const Command helpCommand{
    .name = "help",
    .purpose = "Prints the list of commands, or what there is to know of one.",
    .options = {},
    .operand = {"[COMMAND...]", "", "The command, in one word or two."},
    .details = {},
    .example = "quorix help strings check",
    .run = help,
};

}  // namespace quorix::tool
