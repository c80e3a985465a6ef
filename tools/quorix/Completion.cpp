#include <algorithm>
#include <memory>

#include "tools/quorix/Commands.h"

namespace quorix::tool {
namespace {

constexpr std::string_view shells[] = {"bash", "zsh", "fish"};

// The scripts run the tool that is being completed for its suggestions: `quorix --complete`.

constexpr std::string_view bash = R"(_quorix() {
  local found files= cur=${COMP_WORDS[COMP_CWORD]} tool=${COMP_WORDS[0]/#\~/$HOME}
  [[ $cur == = ]] && cur=
  mapfile -t found < <("$tool" --complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
  [[ ${found[*]: -1} == / ]] && files=1
  mapfile -t COMPREPLY < <(compgen -W "${found[*]%%[$'\t'/]*}" -- "$cur"
    [[ -z $files ]] || compgen -f -- "$cur")
  [[ -z $files ]] || compopt -o filenames 2>/dev/null
}
complete -F _quorix quorix
)";

constexpr std::string_view zsh = R"(#compdef quorix
_quorix() {
  local tab=$'\t' tool=${words[1]/#\~/$HOME}
  local -a found=("${(@f)$("$tool" --complete "${(@)words[2,CURRENT]}" 2>/dev/null)}")
  [[ -n $found ]] || return 1
  local -a shown=("${(@)${(@)found:#/}/$tab/:}")
  _describe quorix shown
  if (( $#found > $#shown )); then compset -P '--*='; _files; fi
}
if [[ $funcstack[1] == _quorix ]]; then _quorix "$@"; else compdef _quorix quorix; fi
)";

constexpr std::string_view fish = R"(function __quorix_found
  set -l words (commandline -opc)
  $words[1] --complete $words[2..] (commandline -ct) 2>/dev/null
end
complete -c quorix -f -a '(__quorix_found | string match -v /)'
complete -c quorix -n '__quorix_found | string match -q /' -F
)";

std::string line(std::string_view word, std::string_view description) {
  const std::string_view separator = description.empty() ? "" : "\t";
  return std::string(word).append(separator).append(description) + '\n';
}

/// The known values of `option`, each after `start`.
std::string values(const Option& option, const std::string& start) {
  std::string lines;
  for (const std::string_view name : option.valid.names) lines += start + line(name, "");
  const std::string_view of = option.value.empty() ? option.name : option.value;
  const bool isFile = of.find("FILE") != of.npos || of.find("FOLDER") != of.npos || of == "FACE";
  return isFile ? lines + "/\n" : lines;
}

/// The first words of all commands, or the second words of those that begin with `first`.
std::string commandNames(const std::string& first) {
  std::string lines;
  for (const auto& command : commands()) {
    if (!command.name.starts_with(first)) continue;
    std::string_view name = command.name;
    name.remove_prefix(first.size());
    lines +=
        line(name.substr(0, name.find(' ')), command.purpose.substr(0, command.purpose.find('\n')));
  }
  return lines;
}

}  // namespace

std::string completions(std::vector<std::string> words) {
  if (words.empty()) return {};
  // bash makes "=" a word of its own.
  if (words.back() == "=") words.emplace_back();
  std::erase(words, "=");
  const bool help = words.size() > 1 && words[0] == "help";
  if (help) words.erase(words.begin());
  const std::size_t count = words.size();
  if (count == 1) return commandNames("") + (help ? "" : "--help\n--version\n");
  std::string lines = count == 2 ? commandNames(words[0] + ' ') : "";
  const auto found = findCommand(words);
  if (help || !lines.empty() || std::holds_alternative<Failure>(found)) return lines;
  const Command& command = *std::get<const Command*>(found);
  const std::string& last = words.back();
  const std::size_t equals = last.find('=');
  const std::string asked = equals == last.npos ? words[count - 2] : last.substr(0, equals);
  for (const Option& option : command.options) {
    if (option.name == asked && !option.value.empty()) {
      return values(option, equals == last.npos ? "" : asked + '=');
    }
    lines += line(option.name, described(option));
  }
  return lines + line("--help", "Prints this.") + values(command.operand, "");
}

Command completionCommand() {
  const auto shell = std::make_shared<std::string>();
  return {
      .name = "completion",
      .purpose =
          "Prints what makes a shell complete the tool's command lines.\n"
          "It is installed with the tool; a tool that is not installed is completed in this shell "
          "after: source <(quorix completion bash)",
      .operand = {"SHELL", "", "{}.", shell.get(), oneOf(shells)},
      .example = "quorix completion bash > quorix.bash && bash -c '. ./quorix.bash'",
      .run = [shell]() -> Outcome {
        return std::string(*shell == "bash" ? bash : *shell == "zsh" ? zsh : fish);
      },
  };
}

}  // namespace quorix::tool
