#include "tools/quorix/Commands.h"

#include "tools/quorix/Help.h"

namespace quorix::tool {
namespace {

/// Escapes `text` for the formatter: a hyphen stays a hyphen when copied, and a dot at the start of
/// a line is not a request.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const bool atBeginning = result.empty() || result.back() == '\n';
    if (atBeginning && (c == '.' || c == '\'')) result += "\\&";
    if (c == '\\')
      result += "\\e";
    else if (c == '-')
      result += "\\-";
    else
      result += c;
  }
  return result;
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

Outcome man(const Arguments&) {
  std::string page = ".TH QUORIX 1 \"\" \"QuorixWidgets " QUORIX_VERSION "\" \"User Commands\"\n";
  page += ".SH NAME\nquorix \\- shows return standing widgets without an app\n";
  page += ".SH SYNOPSIS\n\\fBquorix\\fR \\fICOMMAND\\fR [options]\n";
  page += ".SH DESCRIPTION\n" + escaped(toolPurpose) + "\n.SH COMMANDS\n";
  for (const Command* command : commands()) page += section(*command);
  return page + ".SH EXIT STATUS\n" + escaped(exitStatus) + '\n';
}

}  // namespace

const Command manCommand{
    .name = "man",
    .purpose = "Prints the manual page, which is installed with the tool.",
    .options = {},
    .operand = {},
    .details = {},
    .example = "quorix man > quorix.1 && head -1 quorix.1",
    .run = man,
};

}  // namespace quorix::tool
