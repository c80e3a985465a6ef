#include <QRegularExpression>
#include <QString>
#include <algorithm>
#include <memory>
#include <sstream>
#include <utility>

#include "tools/quorix/Commands.h"

namespace quorix::tool {
namespace {

constexpr std::string_view toolPurpose =
    "quorix shows the widgets without an app: what a shopper sees, hears and is charged. "
    "It works without a display and without a network.";
constexpr std::string_view exitStatus =
    "0 when all went well, 1 for input that was refused, 2 for a wrong command line.";

constexpr std::size_t lineWidth = 79;
constexpr std::size_t optionColumn = 28;
constexpr std::size_t commandColumn = 17;

/// `left`, and the words of `right`, broken into lines that start at `column`.
std::string twoColumns(std::string left, std::string_view right, std::size_t column) {
  std::string line = std::move(left), result;
  const auto endLine = [&] { result += std::exchange(line, {}) + '\n'; };
  if (column > 0 && line.size() + 2 > column) endLine();
  std::istringstream paragraphs{std::string(right)};
  for (std::string paragraph; std::getline(paragraphs, paragraph); endLine()) {
    std::istringstream words(paragraph);
    for (std::string word; words >> word; line += word) {
      if (line.size() > column && line.size() + 1 + word.size() > lineWidth) endLine();
      if (line.size() > column) line += ' ';
      line.resize(std::max(line.size(), column), ' ');
    }
  }
  return result;
}

std::string indented(std::string_view lines) {
  return "  " + QString::fromUtf8(lines).replace("\n", "\n  ").toStdString() + '\n';
}

/// "score TOKEN [options]".
std::string usage(const Command& command) {
  std::string text(command.name);
  if (!command.operand.name.empty()) text += ' ' + std::string(command.operand.name);
  for (const Option& option : command.options) {
    if (option.required) text += ' ' + std::string(option.name) + ' ' + std::string(option.value);
  }
  return command.options.empty() ? text : text + " [options]";
}

/// Escapes `text` for the formatter: a hyphen stays a hyphen when copied, and a dot at the start of
/// a line is not a request.
std::string escaped(std::string_view text) {
  static const QRegularExpression request("^(?=[.'])", QRegularExpression::MultilineOption);
  QString result = QString::fromUtf8(text);
  return result.replace("\\", "\\e").replace("-", "\\-").replace(request, "\\&").toStdString();
}

/// A paragraph with a hanging heading.
std::string item(const Option& option) {
  std::string text = ".TP\n\\fB" + escaped(option.name) + "\\fR";
  if (!option.value.empty()) text += " \\fI" + escaped(option.value) + "\\fR";
  return text + '\n' + escaped(described(option)) + '\n';
}

std::string section(const Command& command) {
  std::string text = ".SS quorix " + escaped(usage(command)) + '\n';
  text += escaped(command.purpose) + '\n';
  if (!command.operand.name.empty()) text += item(command.operand);
  for (const Option& option : command.options) text += item(option);
  if (!command.details.empty()) text += ".PP\n" + escaped(command.details) + '\n';
  return text + ".PP\n.nf\n" + escaped(command.example) + "\n.fi\n";
}

std::string manualPage() {
  std::string page = ".TH QUORIX 1 \"\" \"QuorixWidgets " QUORIX_VERSION "\" \"User Commands\"\n";
  page += ".SH NAME\nquorix \\- shows return standing widgets without an app\n";
  page += ".SH SYNOPSIS\n\\fBquorix\\fR \\fICOMMAND\\fR [options]\n";
  page += ".SH DESCRIPTION\n" + escaped(toolPurpose) + "\n.SH COMMANDS\n";
  for (const Command& command : commands()) page += section(command);
  return page + ".SH EXIT STATUS\n" + escaped(exitStatus) + '\n';
}

}  // namespace

std::string described(const Option& option) {
  std::string text(option.help);
  const std::size_t place = text.find("{}");
  if (place != std::string::npos) text.replace(place, 2, validValues(option));
  return text;
}

std::string helpText() {
  std::string text = twoColumns("", toolPurpose, 0);
  text += "\nUsage: quorix COMMAND [options]\n\nCommands:\n";
  for (const Command& command : commands()) {
    const std::string_view firstLine = command.purpose.substr(0, command.purpose.find('\n'));
    text += twoColumns("  " + std::string(command.name), firstLine, commandColumn);
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

Command helpCommand() {
  const auto name = std::make_shared<std::string>();
  return {
      .name = "help",
      .purpose = "Prints the list of commands, or what there is to know of one.",
      .operand = {"[COMMAND...]", "", "The command, in one word or two.", name.get()},
      .example = "quorix help strings check",
      .run = [name]() -> Outcome {
        if (name->empty()) return helpText();
        const auto found = findCommand(std::span(name.get(), 1));
        if (const auto* failure = std::get_if<Failure>(&found)) return *failure;
        return helpText(*std::get<const Command*>(found));
      },
  };
}

Command manCommand() {
  return {
      .name = "man",
      .purpose = "Prints the manual page, which is installed with the tool.",
      .example = "quorix man > quorix.1 && head -1 quorix.1",
      .run = manualPage,
  };
}

}  // namespace quorix::tool
