#include "tools/quorix/Commands.h"

#include "tools/quorix/Help.h"

namespace quorix::tool {
namespace {

constexpr std::string_view shells[] = {"bash", "zsh", "fish"};

std::string joined(std::span<const std::string_view> words) {
  std::string line;
  for (const std::string_view word : words) {
    if (!line.empty()) line += ' ';
    line += word;
  }
  return line;
}

/// `text` quoted as one shell word.
std::string quoted(std::string_view text) {
  std::string word = "'";
  for (const char c : text) {
    if (c == '\'')
      word += "'\\''";
    else
      word += c;
  }
  return word + '\'';
}

/// Whether the value of `option` is a file path.
bool takesFile(const Option& option) {
  const std::string_view of = option.value.empty() ? option.name : option.value;
  return of.find("FILE") != of.npos || of.find("FOLDER") != of.npos || of == "FACE";
}

/// The known values of `option`, separated by blanks.
std::string values(const Option& option) {
  return joined(option.name == "[COMMAND...]"
                    ? commandNames()
                    : std::vector(option.names.begin(), option.names.end()));
}

std::string firstLine(std::string_view text) {
  return std::string(text.substr(0, text.find('\n')));
}

// The first words of all commands, and the second words of commands that have two.

std::string firstWord(const Command& command) {
  return std::string(command.name.substr(0, command.name.find(' ')));
}

std::string secondWord(const Command& command) {
  const std::size_t space = command.name.find(' ');
  return space == std::string_view::npos ? "" : std::string(command.name.substr(space + 1));
}

std::string bashCase(const Command& command) {
  std::string text = "    " + firstWord(command) + ")\n      case $prev in\n";
  std::string any = values(command.operand);
  for (const Option& option : command.options) {
    any += (any.empty() ? "" : " ") + std::string(option.name);
    if (option.value.empty()) continue;
    text += "        " + std::string(option.name) + ") words=" + quoted(values(option));
    text += std::string(takesFile(option) ? " files=1" : "") + " ;;\n";
  }
  any += " --help";
  if (const std::string second = secondWord(command); !second.empty()) {
    text += "        " + firstWord(command) + ") words=" + second + " ;;\n";
  }
  text += "        *) words=" + quoted(any) + (takesFile(command.operand) ? " files=1" : "");
  return text + " ;;\n      esac ;;\n";
}

std::string bash() {
  std::string firsts;
  for (const Command* command : commands()) firsts += firstWord(*command) + ' ';
  std::string text =
      "_quorix() {\n"
      "  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} words= files=\n"
      "  if [[ $cur == = ]]; then cur=; elif [[ $prev == = ]]; then "
      "prev=${COMP_WORDS[COMP_CWORD-2]}; fi\n"
      "  case ${COMP_WORDS[1]} in\n";
  for (const Command* command : commands()) text += bashCase(*command);
  return text +
         "  esac\n"
         "  if ((COMP_CWORD == 1)); then words='" +
         firsts +
         "--help --version'; files=; fi\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$cur\"\n"
         "    [[ -z $files ]] || compgen -f -- \"$cur\")\n"
         "  [[ -z $files ]] || compopt -o filenames 2>/dev/null\n"
         "}\n"
         "complete -F _quorix quorix\n";
}

/// ":NAME:(light dark)": describes the value of an option, or an operand.
std::string zshValue(std::string_view title, const Option& option) {
  const std::string known = values(option);
  const std::string action = takesFile(option) ? "_files" : known.empty() ? " " : '(' + known + ')';
  return ':' + std::string(title) + ':' + action;
}

std::string zshCase(const Command& command) {
  std::string text = "    " + firstWord(command) + ")\n";
  if (const std::string second = secondWord(command); !second.empty()) {
    text += "      if (( CURRENT == 2 )); then compadd " + second +
            "; return; fi\n      shift words; (( CURRENT-- ))\n";
  }
  text += "      _arguments";
  for (const Option& option : command.options) {
    std::string help = described(option);
    std::erase_if(help, [](char c) { return c == '[' || c == ']'; });
    std::string entry(option.name);
    if (!option.value.empty()) entry += '=';
    entry += '[' + help + ']';
    if (!option.value.empty()) entry += zshValue(option.value, option);
    text += " \\\n        " + quoted(entry);
  }
  if (!command.operand.name.empty()) {
    text += " \\\n        " + quoted('1' + zshValue("argument", command.operand));
  }
  return text + " \\\n        '--help[Prints help.]' ;;\n";
}

std::string zsh() {
  std::string text = "#compdef quorix\n_quorix() {\n  local -a commands=(\n";
  for (const Command* command : commands()) {
    text += "    " + quoted(firstWord(*command) + ':' + firstLine(command->purpose)) + '\n';
  }
  text +=
      "  )\n"
      "  if (( CURRENT == 2 )); then _describe command commands; return; fi\n"
      "  shift words; (( CURRENT-- ))\n"
      "  case $words[1] in\n";
  for (const Command* command : commands()) text += zshCase(*command);
  return text +
         "  esac\n}\n"
         "if [[ $funcstack[1] == _quorix ]]; then _quorix \"$@\"; else compdef _quorix quorix; "
         "fi\n";
}

std::string fish() {
  std::string text = "complete -c quorix -f\n";
  for (const Command* command : commands()) {
    const std::string within =
        "complete -c quorix -n '__fish_seen_subcommand_from " + firstWord(*command) + '\'';
    text += "complete -c quorix -n __fish_use_subcommand -a " + firstWord(*command) + " -d " +
            quoted(firstLine(command->purpose)) + '\n';
    const Option& operand = command->operand;
    std::string words = secondWord(*command);
    words += (words.empty() ? "" : " ") + values(operand);
    if (words.find_first_not_of(' ') != words.npos) text += within + " -a " + quoted(words) + '\n';
    if (takesFile(operand)) text += within + " -F\n";
    for (const Option& option : command->options) {
      text +=
          within + " -l " + std::string(option.name.substr(2)) + " -d " + quoted(described(option));
      if (!option.value.empty()) {
        text += takesFile(option) ? " -r -F" : " -x -a " + quoted(values(option));
      }
      text += '\n';
    }
  }
  return text + "complete -c quorix -l help -d 'Prints help.'\n";
}

Outcome completion(const Arguments& arguments) {
  const std::string& shell = *arguments.operand();
  const std::string head = "# How a shell completes the command lines of quorix.\n";
  // zsh reads the first line, so it must not be a comment.
  if (shell == "zsh") return zsh();
  return head + (shell == "bash" ? bash() : fish());
}

}  // namespace

const Command completionCommand{
    .name = "completion",
    .purpose =
        "Prints what makes a shell complete the tool's command lines.\n"
        "It is installed with the tool; a tool that is not installed is completed in this shell "
        "after: source <(quorix completion bash)",
    .options = {},
    .operand = {"SHELL", "", "{}.", shells},
    .details = {},
    .example = "quorix completion bash > quorix.bash && bash -c '. ./quorix.bash'",
    .run = completion,
};

}  // namespace quorix::tool
