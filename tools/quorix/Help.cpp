#include "tools/quorix/Help.h"

#include <algorithm>

namespace quorix::tool {
namespace {

/// `left` in a column of `width`, then `right`, whose further lines begin in the same column.
std::string twoColumns(std::string left, std::string_view right, std::size_t width) {
  left.resize(std::max(width, left.size() + 2), ' ');
  std::string result = std::move(left);
  for (const char c : right) {
    result += c;
    if (c == '\n') result.append(width, ' ');
  }
  return result + '\n';
}

std::string indented(std::string_view lines) {
  std::string result = "  ";
  for (const char c : lines) {
    result += c;
    if (c == '\n') result += "  ";
  }
  return result + '\n';
}

}  // namespace

std::string helpText(std::span<const Command* const> commands) {
  constexpr std::size_t commandColumn = 17;
  std::string text =
      "quorix shows the widgets without an app: what a shopper sees, hears and is charged.\n"
      "It works without a display and without a network.\n\n"
      "Usage: quorix COMMAND [options]\n\nCommands:\n";
  for (const Command* command : commands) {
    const std::string_view firstLine = command->purpose.substr(0, command->purpose.find('\n'));
    text += twoColumns("  " + std::string(command->name), firstLine, commandColumn);
  }
  text += twoColumns("  --version", "Prints the version.", commandColumn);
  text += "\n\"quorix COMMAND --help\" tells the rest.\n\nExample:\n";
  text += indented("quorix score --token \"$(quorix mint)\" --out row.png");
  text +=
      "\nExit status: 0 when all went well, 1 for input that was refused, 2 for a wrong command"
      " line.\n";
  return text;
}

std::string helpText(const Command& command) {
  constexpr std::size_t optionColumn = 28;
  std::string text(command.purpose);
  text += "\n\nUsage: quorix " + std::string(command.name);
  if (!command.synopsis.empty()) text += ' ' + std::string(command.synopsis);
  text += "\n\nOptions:\n";
  for (const Option& option : command.options) {
    std::string left = "  " + std::string(option.name);
    if (!option.value.empty()) left += ' ' + std::string(option.value);
    text += twoColumns(std::move(left), option.help, optionColumn);
  }
  text += twoColumns("  --help", "Prints this.", optionColumn);
  if (!command.details.empty()) text += '\n' + std::string(command.details) + '\n';
  return text + "\nExample:\n" + indented(command.example);
}

}  // namespace quorix::tool
